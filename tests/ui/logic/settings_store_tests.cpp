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

}  // namespace
}  // namespace quillhue
