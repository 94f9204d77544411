#include <gtest/gtest.h>

#include <map>
#include <string>

#include "core/new_palette.h"
#include "ui/logic/settings_store.h"

namespace quillhue {
namespace {

using Bytes = std::vector<std::uint8_t>;

class MapStore : public SettingsStore {
 public:
  std::map<std::string, std::pair<SettingType, Bytes>, std::less<>> values;
  std::string written;

  std::optional<Bytes> read(std::string_view name, SettingType type) override {
    const auto found = values.find(name);
    return found == values.end() || found->second.first != type ? std::nullopt : std::optional(found->second.second);
  }
  void write(std::string_view name, SettingType type, std::span<const std::uint8_t> value) override {
    values[std::string(name)] = {type, Bytes(value.begin(), value.end())};
    written.append(name).append(type == SettingType::number ? "# " : ". ");
  }
};

std::string show(const SavedSettings& settings) {
  const AppSettings& app = settings.app;
  std::string text;
  for (const std::int64_t number :
       {std::int64_t{settings.window.width}, std::int64_t{settings.window.height}, std::int64_t{app.paletteSize},
        std::int64_t{app.blank.red}, std::int64_t{app.blank.green}, std::int64_t{app.blank.blue},
        std::int64_t{app.windowsColors}, std::int64_t{app.rgbLevels[0]}, std::int64_t{app.rgbLevels[1]},
        std::int64_t{app.rgbLevels[2]}, std::int64_t{app.colorMode}, std::int64_t{app.effect},
        static_cast<std::int64_t>(app.selectionMode)}) {
    text += std::to_string(number) + ' ';
  }
  return text;
}

constexpr const char* kDefaults = "872 752 256 0 0 0 0 6 7 6 4 5 0 ";

TEST(SettingsStore, ReadsEachValueByItsRule) {
  const auto number = SettingType::number;
  const auto bytes = SettingType::bytes;
  const struct {
    const char* name;
    SettingType type;
    Bytes value;
    const char* settings;
  } cases[] = {
      {"Nothing", bytes, {1}, kDefaults},
      {"Window width", number, {0xE8, 3, 0, 0}, "1000 752 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Window width", number, {100, 0, 0, 0}, "436 752 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Window width", number, {0xB5, 1, 0, 0}, "437 752 256 0 0 0 0 6 7 6 4 5 0 "},
      // 0x103E8 is 1000 in its low 16 bits, 0x8000 is -32768 and 0x7FFF the most.
      {"Window width", number, {0xE8, 3, 1, 0}, "1000 752 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Window width", number, {0, 0x80, 0, 0}, "436 752 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Window height", number, {0xFF, 0x7F, 0, 0}, "872 32767 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Window height", number, {0x77, 1, 0, 0}, "872 376 256 0 0 0 0 6 7 6 4 5 0 "},
      {"Palette size", number, {0, 4, 0, 0}, "872 752 1024 0 0 0 0 6 7 6 4 5 0 "},
      {"Palette size", number, {0x88, 0x13, 0, 0}, "872 752 1024 0 0 0 0 6 7 6 4 5 0 "},
      {"Palette size", number, {0xFF, 0xFF, 0xFF, 0xFF}, "872 752 1024 0 0 0 0 6 7 6 4 5 0 "},
      {"Palette size", number, {0, 0, 0, 0}, "872 752 0 0 0 0 0 6 7 6 4 5 0 "},
      {"Blank", bytes, {1, 2, 255}, "872 752 256 1 2 255 0 6 7 6 4 5 0 "},
      {"Windows colors", bytes, {1}, "872 752 256 0 0 0 1 6 7 6 4 5 0 "},
      {"Windows colors", bytes, {2}, "872 752 256 0 0 0 1 6 7 6 4 5 0 "},
      {"RGB levels", bytes, {0, 8, 255}, "872 752 256 0 0 0 0 0 8 255 4 5 0 "},
      {"Color mode", bytes, {8}, "872 752 256 0 0 0 0 6 7 6 8 5 0 "},
      {"Color mode", bytes, {9}, kDefaults},
      {"Effect", bytes, {14}, "872 752 256 0 0 0 0 6 7 6 4 14 0 "},
      {"Effect", bytes, {15}, kDefaults},
      {"Selection mode", bytes, {2}, "872 752 256 0 0 0 0 6 7 6 4 5 2 "},
      {"Selection mode", bytes, {3}, kDefaults},
      // Another type, or another length.
      {"Window width", bytes, {0xE8, 3, 0, 0}, kDefaults},
      {"Window height", number, {0xE8, 3}, kDefaults},
      {"Palette size", bytes, {2, 0, 0, 0}, kDefaults},
      {"Effect", number, {2, 0, 0, 0}, kDefaults},
      {"Effect", bytes, {2, 0}, kDefaults},
      {"Blank", bytes, {1, 2}, kDefaults},
      {"RGB levels", bytes, {}, kDefaults},
  };
  for (const auto& [name, type, value, settings] : cases) {
    MapStore store;
    store.values[name] = {type, value};
    EXPECT_EQ(show(readSettings(store, {96})), settings) << name << ' ' << value.size();
  }
}

TEST(SettingsStore, WritesAllAndReadsItAgain) {
  MapStore store;
  EXPECT_EQ(show(readSettings(store, {144})), "1308 1128 256 0 0 0 0 6 7 6 4 5 0 ");
  const SavedSettings settings{{700, {10, 20, 30}, true, {2, 0, 4}, 3, 14, SelectionMode::range}, {500, 40000}};
  writeSettings(settings, store);
  EXPECT_EQ(store.written,
            "Blank. Windows colors. RGB levels. Color mode. Effect. Selection mode. "
            "Window width# Window height# Palette size# ");
  EXPECT_EQ(store.values["Window height"].second, (Bytes{0x40, 0x9C, 0, 0}));
  EXPECT_EQ(store.values["RGB levels"].second, (Bytes{2, 0, 4}));
  // 40000 does not fit into 15 bits.
  EXPECT_EQ(show(readSettings(store, {96})), "500 376 700 10 20 30 1 2 0 4 3 14 2 ");
}

TEST(SettingsStore, ASizeOfNothingIsProposedAsOne) {
  MapStore store;
  store.values["Palette size"] = {SettingType::number, Bytes(4)};
  EXPECT_EQ(newPaletteFields(readSettings(store, {96}).app).size, 1);
}

}  // namespace
}  // namespace quillhue
