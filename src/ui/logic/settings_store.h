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

/// The kinds of values: a number of 32 bits, kept as four bytes with the lowest first, and plain bytes.
enum class SettingType : std::uint8_t { number, bytes };

/// Where settings are kept from one session to the next: values by name.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// All bytes of the value; nothing when there is none of this name and type, or it can't be read.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> read(std::string_view name, SettingType type) = 0;
  /// Puts the value in place of any other of this name. One that can't be written is left.
  virtual void write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) = 0;
};

/// All that is kept.
struct SavedSettings {
  AppSettings app;
  /// The outer size of the main window in pixels.
  Size window;
};

struct SettingDescription {
  std::string_view name;
  SettingType type;
  /// The bytes of a value. One of any other length is not used.
  std::size_t length;
  /// Takes a value into the settings. One that is out of its range leaves them as they are or becomes the nearest.
  void (*load)(std::span<const std::uint8_t> value, Scale scale, SavedSettings& settings);
  std::vector<std::uint8_t> (*save)(const SavedSettings& settings);
};

/// All settings, in the order in which they are written.
[[nodiscard]] std::span<const SettingDescription> settingDescriptions();

/// The settings of a first start on a screen of this resolution.
[[nodiscard]] SavedSettings defaultSettings(Scale scale);

/// What the store has; the default for everything that it has not, and for a value of another type or length.
[[nodiscard]] SavedSettings readSettings(SettingsStore& store, Scale scale);
void writeSettings(const SavedSettings& settings, SettingsStore& store);

}  // namespace quillhue
