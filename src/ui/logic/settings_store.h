#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "ui/logic/geometry.h"

namespace quillhue {

/// Types of values: a 32-bit number as four bytes in little-endian order, or plain bytes.
enum class SettingType : std::uint8_t { number, bytes };

/// Persistent storage of named values.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// Returns all bytes of the value, or nothing if no value has this name and type or it can't be read.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> read(std::string_view name, SettingType type) = 0;
  /// Writes the value and replaces any other value of this name. Ignores failures.
  virtual void write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) = 0;
};

/// All settings that are saved when the program ends.
struct SavedSettings {
  AppSettings app;
  /// The outer size of the main window in pixels.
  Size window;
};

struct SettingDescription {
  std::string_view name;
  SettingType type;
  /// Length of the value in bytes. Values of any other length are ignored.
  std::size_t length;
  /// Stores a value in the settings. A value out of range is ignored or clamped.
  void (*load)(std::span<const std::uint8_t> value, Scale scale, SavedSettings& settings);
  std::vector<std::uint8_t> (*save)(const SavedSettings& settings);
};

/// Returns all settings in the order in which they are written.
[[nodiscard]] std::span<const SettingDescription> settingDescriptions();

/// Returns the settings of a first start on a screen of this resolution.
[[nodiscard]] SavedSettings defaultSettings(Scale scale);

/// Reads the settings from the store. Uses the default for values that are missing or have another type or length.
[[nodiscard]] SavedSettings readSettings(SettingsStore& store, Scale scale);
void writeSettings(const SavedSettings& settings, SettingsStore& store);

}  // namespace quillhue
