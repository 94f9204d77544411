#include <gtest/gtest.h>

#include <map>

#include "ui/logic/settings_store.h"

namespace quillhue {
namespace {

struct FailingStore final : SettingsStore {
  std::optional<std::vector<std::uint8_t>> read(std::string_view name, SettingType /*type*/) override {
    return values.at(name);
  }
  void write(std::string_view name, SettingType /*type*/, std::span<const std::uint8_t> value) override {
    if (name != failing) {
      values[name].assign(value.begin(), value.end());
    }
  }

  std::map<std::string_view, std::vector<std::uint8_t>> values;
  std::string_view failing;
};

TEST(SettingsStore, KeepsAllButTheValueThatIsNotWritten) {
  const SavedSettings old = defaultSettings({96});
  const SavedSettings changed{{100, {1, 2, 3}, true, {2, 3, 4}, 1, 1, SelectionMode::row}, {900, 800}};
  for (const SettingDescription& failing : settingDescriptions()) {
    FailingStore store;
    writeSettings(old, store);
    store.failing = failing.name;
    writeSettings(changed, store);
    const SavedSettings found = readSettings(store, {96});
    for (const SettingDescription& setting : settingDescriptions()) {
      EXPECT_NE(setting.save(old), setting.save(changed)) << setting.name;
      EXPECT_EQ(setting.save(found), setting.save(setting.name == failing.name ? old : changed)) << setting.name;
    }
  }
}

// The bytes of a value as they are stored, and as they are written again: numbers have four, the lowest first.
TEST(SettingsStore, BringsEachValueIntoItsRange) {
  using Bytes = std::vector<std::uint8_t>;
  const struct {
    const char* name;
    Bytes stored;
    Bytes written;
  } cases[] = {
      // 436 is 0x1B4, 872 is 0x368: the least and the usual width; 376 and 752 the heights. Only 16 bits count.
      {"Window width", {100, 0, 0, 0}, {0xB4, 1, 0, 0}},
      {"Window width", {0xB5, 1, 0, 0}, {0xB5, 1, 0, 0}},
      {"Window width", {0xFF, 0xFF, 0, 0}, {0xB4, 1, 0, 0}},
      {"Window width", {0xBC, 2, 1, 0}, {0xBC, 2, 0, 0}},
      {"Window width", {1, 4}, {0x68, 3, 0, 0}},
      {"Window height", {0, 0, 0, 0}, {0x78, 1, 0, 0}},
      {"Window height", {0x58, 2, 0x7F, 0}, {0x58, 2, 0, 0}},
      {"Window height", {1, 4, 0}, {0xF0, 2, 0, 0}},
      {"Palette size", {1, 0, 0, 0}, {1, 0, 0, 0}},
      {"Palette size", {0, 4, 0, 0}, {0, 4, 0, 0}},
      {"Palette size", {0x88, 0x13, 0, 0}, {0, 4, 0, 0}},
      {"Palette size", {0xFF, 0xFF, 0xFF, 0xFF}, {0, 4, 0, 0}},
      {"Blank", {1, 2, 255}, {1, 2, 255}},
      {"Blank", {1, 2}, {0, 0, 0}},
      {"Blank", {1, 2, 3, 4}, {0, 0, 0}},
      {"Windows colors", {2}, {1}},
      {"Windows colors", {1, 1}, {0}},
      {"RGB levels", {2, 0, 255}, {2, 0, 255}},
      {"RGB levels", {2}, {6, 7, 6}},
      {"Color mode", {8}, {8}},
      {"Color mode", {9}, {4}},
      {"Effect", {14}, {14}},
      {"Effect", {15}, {5}},
      {"Selection mode", {2}, {2}},
      {"Selection mode", {3}, {0}},
      {"Selection mode", {}, {0}},
  };
  for (const auto& [name, stored, written] : cases) {
    FailingStore store;
    writeSettings(defaultSettings({96}), store);
    store.values[name] = stored;
    writeSettings(readSettings(store, {96}), store);
    EXPECT_EQ(store.values[name], written) << name << ' ' << testing::PrintToString(stored);
  }
}

}  // namespace
}  // namespace quillhue
