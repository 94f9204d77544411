#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/services/registry_settings.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr const wchar_t* kStandIn = L"SOFTWARE\\QuillhueTests";
constexpr const wchar_t* kKey = L"SOFTWARE\\Quillhue\\4";

RegistryKey createKey(const wchar_t* path) {
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  return RegistryKey(key);
}

// The tests of the program cover writing and reading. These tests replace the user's registry key by another, so the
// user's settings do not change.
class RegistrySettingsTest : public testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, kStandIn);
    ASSERT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, createKey(kStandIn).get()), ERROR_SUCCESS);
  }
  void TearDown() override {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, kStandIn);
  }

  RegistrySettings settings;
};

TEST_F(RegistrySettingsTest, ReadsOnlyTheWantedTypeAtItsWholeLength) {
  const RegistryKey key = createKey(kKey);
  for (const DWORD type : std::initializer_list<DWORD>{REG_DWORD, REG_BINARY, REG_QWORD, REG_SZ, REG_NONE}) {
    for (const std::size_t length : {std::size_t{4}, std::size_t{100'000}}) {
      if (type == REG_DWORD && length > 4) {
        continue;
      }
      SCOPED_TRACE("type " + std::to_string(type) + ", length " + std::to_string(length));
      const Bytes value(length, 9);
      RegSetValueExW(key.get(), L"Blank", 0, type, value.data(), static_cast<DWORD>(length));
      const bool isNumber = type == REG_DWORD;
      EXPECT_EQ(settings.read("Blank", SettingType::number), isNumber ? std::optional(value) : std::nullopt);
      EXPECT_EQ(settings.read("Blank", SettingType::bytes), type == REG_BINARY ? std::optional(value) : std::nullopt);
    }
  }
}

}  // namespace
}  // namespace quillhue
