#pragma once

#include "ui/logic/settings_store.h"

namespace quillhue {

/// Stores settings in the user's registry, under "SOFTWARE\Quillhue\4". Writing creates the key if it is missing.
/// Failures are silent: a value that can't be read counts as missing, and one that can't be written is lost.
class RegistrySettings final : public SettingsStore {
 public:
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> read(std::string_view name, SettingType type) override;
  void write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) override;
};

}  // namespace quillhue
