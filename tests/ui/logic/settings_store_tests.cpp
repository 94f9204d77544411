#include <gtest/gtest.h>

#include <map>

#include "colormodes/color_models.h"
#include "effects/effects.h"
#include "support/palettes.h"
#include "support/patches.h"
#include "support/table.h"
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

// Reads these bytes as a value, writes the value again, and returns its bytes.
std::string rewritten(std::string_view name, const std::vector<std::uint8_t>& stored) {
  FailingStore store;
  writeSettings(defaultSettings({96}), store);
  store.values[name] = stored;
  writeSettings(readSettings(store, {96}), store);
  return hexOf(store.values[name]);
}

TEST(SettingsStore, BringsEachValueIntoItsRange) {
  for (const auto& row : readTable("settings.txt")) {
    Bytes stored;
    patch(stored, "0:" + row.at(1));
    EXPECT_EQ(rewritten(row.at(0), stored), row.at(2)) << row[0] << ' ' << row[1];
  }
  // An index past the end of a catalogue gives the default.
  for (const auto& [name, count, otherwise] :
       {std::tuple{"Color mode", colorModels().size(), 4}, {"Effect", effects().size(), 5}}) {
    const auto last = static_cast<std::uint8_t>(count - 1);
    EXPECT_EQ(rewritten(name, {last}), hexOf(Bytes{last}));
    EXPECT_EQ(rewritten(name, {static_cast<std::uint8_t>(count)}), hexOf(Bytes{static_cast<std::uint8_t>(otherwise)}));
  }
}

}  // namespace
}  // namespace quillhue
