#include "ui/support/registry.h"

#include <array>
#include <ostream>
#include <utility>

#include "core/utf8.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kKey = L"SOFTWARE\\Quillhue\\4";

}  // namespace

StoredValue storedNumber(std::int32_t number) {
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&number);
  return {REG_DWORD, {bytes, bytes + sizeof(number)}};
}

StoredValue storedBytes(std::vector<std::uint8_t> bytes) { return {REG_BINARY, std::move(bytes)}; }

void PrintTo(const StoredValue& value, std::ostream* stream) {
  *stream << "type " << value.type << ':';
  for (const std::uint8_t byte : value.bytes) {
    *stream << ' ' << static_cast<int>(byte);
  }
}

StoredSettings storedSettings() {
  HKEY key = nullptr;
  StoredSettings settings;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return settings;
  }
  std::array<wchar_t, 64> name{};
  std::array<std::uint8_t, 64> value{};
  DWORD nameLength = name.size();
  DWORD valueLength = value.size();
  DWORD type = 0;
  for (DWORD i = 0;
       RegEnumValueW(key, i, name.data(), &nameLength, nullptr, &type, value.data(), &valueLength) == ERROR_SUCCESS;
       ++i) {
    settings[toUtf8(name.data())] = {type, {value.data(), value.data() + valueLength}};
    nameLength = name.size();
    valueLength = value.size();
  }
  RegCloseKey(key);
  return settings;
}

void store(const StoredSettings& settings) {
  RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  if (settings.empty()) {
    return;
  }
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
  for (const auto& [name, value] : settings) {
    RegSetValueExW(key, fromUtf8(name).c_str(), 0, value.type, value.bytes.data(),
                   static_cast<DWORD>(value.bytes.size()));
  }
  RegCloseKey(key);
}

}  // namespace quillhue
