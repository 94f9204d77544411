#include "ui/support/registry.h"

#include "ui/services/registry_settings.h"
#include "ui/win32/system.h"

namespace quillhue {

std::vector<std::uint8_t> storedNumber(std::int32_t number) {
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&number);
  return {bytes, bytes + sizeof(number)};
}

StoredSettings storedSettings() {
  RegistrySettings registry;
  StoredSettings settings;
  for (const SettingDescription& setting : settingDescriptions()) {
    if (auto value = registry.read(setting.name, setting.type)) {
      settings[std::string(setting.name)] = std::move(*value);
    }
  }
  return settings;
}

void store(const StoredSettings& settings) {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quillhue\\4");
  RegistrySettings registry;
  for (const SettingDescription& setting : settingDescriptions()) {
    if (const auto found = settings.find(std::string(setting.name)); found != settings.end()) {
      registry.write(setting.name, setting.type, found->second);
    }
  }
}

}  // namespace quillhue
