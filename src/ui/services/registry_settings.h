#pragma once

#include "ui/logic/settings_store.h"

namespace quillhue {

/// Settings as values of the user's registry, under "SOFTWARE\Quillhue\4". Writing makes the key where it is missing.
/// Nothing here fails loudly: what can't be read is missing, what can't be written is lost.
class RegistrySettings final : public SettingsStore {
 public:
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> read(std::string_view name, SettingType type) override;
  void write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) override;
};

}  // namespace quillhue
