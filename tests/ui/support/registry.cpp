#include "ui/support/registry.h"

#include <windows.h>

#include <array>
#include <ostream>
#include <utility>

#include "core/utf8.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kKey = L"SOFTWARE\\Quillhue\\4";

}  // namespace

StoredValue storedNumber(std::uint32_t number) {
  return {REG_DWORD,
          {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8U),
           static_cast<std::uint8_t>(number >> 16U), static_cast<std::uint8_t>(number >> 24U)}};
}

StoredValue storedBytes(std::vector<std::uint8_t> bytes) { return {REG_BINARY, std::move(bytes)}; }

StoredValue storedText(std::string_view text) {
  const std::wstring wide = fromUtf8(text);
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(wide.c_str());
  return {REG_SZ, {bytes, bytes + (wide.size() + 1) * sizeof(wchar_t)}};
}

void PrintTo(const StoredValue& value, std::ostream* stream) {
  *stream << "type " << value.type << ':';
  for (const std::uint8_t byte : value.bytes) {
    *stream << ' ' << static_cast<int>(byte);
  }
}

std::optional<StoredSettings> storedSettings() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  StoredSettings settings;
  std::array<wchar_t, 64> name{};
  std::array<std::uint8_t, 64> value{};
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = name.size();
    DWORD valueLength = value.size();
    DWORD type = 0;
    if (RegEnumValueW(key, i, name.data(), &nameLength, nullptr, &type, value.data(), &valueLength) != ERROR_SUCCESS) {
      break;
    }
    settings[toUtf8(name.data())] = {type, {value.begin(), value.begin() + static_cast<std::ptrdiff_t>(valueLength)}};
  }
  RegCloseKey(key);
  return settings;
}

void store(const std::optional<StoredSettings>& settings) {
  RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  if (!settings) {
    return;
  }
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
  for (const auto& [name, value] : *settings) {
    RegSetValueExW(key, fromUtf8(name).c_str(), 0, value.type, value.bytes.data(),
                   static_cast<DWORD>(value.bytes.size()));
  }
  RegCloseKey(key);
}

}  // namespace quillhue
