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

// What is written and read again is tested with the program. Another key takes the place of the user's own, whose
// settings stay as they are.
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
  const struct {
    DWORD type;
    Bytes value;
    std::optional<Bytes> asNumber;
    std::optional<Bytes> asBytes;
  } cases[] = {
      {REG_DWORD, {1, 2, 3, 4}, Bytes{1, 2, 3, 4}, {}},
      {REG_BINARY, {1, 2, 3, 4}, {}, Bytes{1, 2, 3, 4}},
      {REG_BINARY, {}, {}, Bytes{}},
      {REG_BINARY, Bytes(100'000, 9), {}, Bytes(100'000, 9)},
      {REG_QWORD, Bytes(8, 1), {}, {}},
      {REG_DWORD_BIG_ENDIAN, {0, 0, 0, 1}, {}, {}},
      {REG_SZ, {'1', 0, 0, 0}, {}, {}},
      {REG_NONE, {1}, {}, {}},
  };
  const RegistryKey key = createKey(kKey);
  for (const auto& test : cases) {
    SCOPED_TRACE("type " + std::to_string(test.type) + ", length " + std::to_string(test.value.size()));
    ASSERT_EQ(
        RegSetValueExW(key.get(), L"Blank", 0, test.type, test.value.data(), static_cast<DWORD>(test.value.size())),
        ERROR_SUCCESS);
    EXPECT_EQ(settings.read("Blank", SettingType::number), test.asNumber);
    EXPECT_EQ(settings.read("Blank", SettingType::bytes), test.asBytes);
  }
}

}  // namespace
}  // namespace quillhue
