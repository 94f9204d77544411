#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "ui/services/registry_settings.h"
#include "ui/win32/handle.h"

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

// Another key takes the place of the user's own, whose settings stay as they are.
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

// What another program finds: the type and the bytes.
std::pair<DWORD, Bytes> stored(const wchar_t* name) {
  DWORD type = REG_NONE;
  Bytes value(16);
  auto length = static_cast<DWORD>(value.size());
  RegGetValueW(HKEY_CURRENT_USER, kKey, name, RRF_RT_ANY, &type, value.data(), &length);
  value.resize(type == REG_NONE ? 0 : length);
  return {type, value};
}

TEST_F(RegistrySettingsTest, WritesTypesAndMakesItsKey) {
  EXPECT_EQ(settings.read("Blank", SettingType::bytes), std::nullopt);
  settings.write("Blank", SettingType::bytes, Bytes{1, 0, 255});
  settings.write("Window width", SettingType::number, Bytes{0x68, 3, 0, 0});
  EXPECT_EQ(stored(L"Blank"), std::pair(DWORD{REG_BINARY}, Bytes{1, 0, 255}));
  EXPECT_EQ(stored(L"Window width"), std::pair(DWORD{REG_DWORD}, Bytes{0x68, 3, 0, 0}));
  EXPECT_EQ(settings.read("Blank", SettingType::bytes), (Bytes{1, 0, 255}));
  EXPECT_EQ(settings.read("Window width", SettingType::number), (Bytes{0x68, 3, 0, 0}));
  // In place of a value of another type.
  settings.write("Window width", SettingType::bytes, Bytes{7});
  EXPECT_EQ(stored(L"Window width"), std::pair(DWORD{REG_BINARY}, Bytes{7}));
}

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

// Numbers whose length is not theirs are taken for missing, whether or not the system lets them through.
TEST_F(RegistrySettingsTest, ARoundTripKeepsAllAndBadLengthsGiveDefaults) {
  SavedSettings saved = defaultSettings({96});
  saved.app = {.paletteSize = 17,
               .blank = {1, 2, 3},
               .windowsColors = true,
               .rgbLevels = {0, 8, 255},
               .colorMode = 8,
               .effect = 14,
               .selectionMode = SelectionMode::range};
  saved.window = {1001, 777};
  const auto bytesOf = [](const SavedSettings& values) {
    std::vector<Bytes> all;
    for (const SettingDescription& setting : settingDescriptions()) {
      all.push_back(setting.save(values));
    }
    return all;
  };
  writeSettings(saved, settings);
  EXPECT_EQ(bytesOf(readSettings(settings, {96})), bytesOf(saved));

  const RegistryKey key = createKey(kKey);
  for (const wchar_t* const name : {L"Window width", L"Window height", L"Palette size"}) {
    RegSetValueExW(key.get(), name, 0, REG_DWORD, Bytes{1, 4}.data(), 2);
  }
  for (const wchar_t* const name : {L"Blank", L"Windows colors", L"RGB levels", L"Color mode", L"Effect"}) {
    RegSetValueExW(key.get(), name, 0, REG_BINARY, Bytes{1, 1}.data(), 2);
  }
  RegSetValueExW(key.get(), L"Selection mode", 0, REG_BINARY, nullptr, 0);
  EXPECT_EQ(bytesOf(readSettings(settings, {96})), bytesOf(defaultSettings({96})));
}

}  // namespace
}  // namespace quillhue
