#include "ui/services/registry_settings.h"

#include "core/utf8.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kKey = L"SOFTWARE\\Quillhue\\4";

}  // namespace

std::optional<std::vector<std::uint8_t>> RegistrySettings::read(std::string_view name, SettingType type) {
  const std::wstring wide = fromUtf8(name);
  const DWORD wanted = type == SettingType::number ? RRF_RT_REG_DWORD : RRF_RT_REG_BINARY;
  const auto get = [&](std::uint8_t* value, DWORD& length) {
    return RegGetValueW(HKEY_CURRENT_USER, kKey, wide.c_str(), wanted, nullptr, value, &length) == ERROR_SUCCESS;
  };
  DWORD length = 0;
  if (!get(nullptr, length)) {
    return std::nullopt;
  }
  std::vector<std::uint8_t> value(length);
  if (!get(value.data(), length)) {
    return std::nullopt;
  }
  value.resize(length);
  return value;
}

void RegistrySettings::write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) {
  HKEY opened = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &opened, nullptr);
  const RegistryKey key(opened);
  RegSetValueExW(key.get(), fromUtf8(name).c_str(), 0, type == SettingType::number ? REG_DWORD : REG_BINARY,
                 value.data(), static_cast<DWORD>(value.size()));
}

}  // namespace quillhue
