#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "core/new_palette.h"
#include "core/system_palettes.h"
#include "support/checksum.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/table.h"

namespace quillhue {
namespace {

// Entries `first` to `last` as text.
std::string part(const Palette& palette, std::size_t first, std::size_t last) {
  const std::vector<PaletteEntry> entries = entriesOf(palette);
  return show(paletteOf(std::span(entries).subspan(first, last - first + 1)));
}

TEST(Generators, WriteTheWindowsColorsWhereTheyHaveAPlace) {
  const Palette twenty = createBlankPalette(20, true, {9, 9, 9});
  EXPECT_EQ(part(twenty, 0, 9),
            "0,0,0 128,0,0 0,128,0 128,128,0 0,0,128 128,0,128 0,128,128 192,192,192 192,220,192 166,202,240");
  EXPECT_EQ(part(twenty, 10, 19),
            "255,251,240 160,160,164 128,128,128 255,0,0 0,255,0 255,255,0 0,0,255 255,0,255 0,255,255 255,255,255");
  EXPECT_EQ(show(createBlankPalette(3, true, {})), "255,0,255 0,255,255 255,255,255");
  EXPECT_EQ(part(createBlankPalette(22, true, {9, 9, 9}), 9, 12), "166,202,240 9,9,9 9,9,9 255,251,240");
  EXPECT_EQ(show(createBlankPalette(-1, false, {9, 9, 9})), "9,9,9");
}

TEST(Generators, SpreadGreysAndLevelsEvenly) {
  EXPECT_EQ(show(createGreyscalePalette(0)), "0,0,0");
  EXPECT_EQ(show(createGreyscalePalette(3)), "0,0,0 127,127,127 255,255,255");
  const Palette greys = createGreyscalePalette(256);
  EXPECT_EQ(part(greys, 254, 255), "254,254,254 255,255,255");
  const std::string corners = "0,0,0 255,0,0 0,255,0 255,255,0 0,0,255 255,0,255 0,255,255 255,255,255";
  EXPECT_EQ(show(createRgbPalette(8, {2, 2, 2}, false, {})), corners);
  const Palette framed = createRgbPalette(29, {2, 2, 2}, true, {9, 9, 9});
  EXPECT_EQ(part(framed, 10, 17), corners);
  EXPECT_EQ(part(framed, 18, 19), "9,9,9 255,251,240");
  EXPECT_EQ(show(createRgbPalette(4, {1, 3, 1}, false, {9, 9, 9})), "0,0,0 0,127,0 0,255,0 9,9,9");
  EXPECT_EQ(part(createRgbPalette(256, {256, 1, 2}, false, {}), 254, 255), "254,0,0 255,0,0");
  EXPECT_EQ(show(createRgbPalette(2, {256, 256, 256}, false, {})), "0,0,0 1,0,0");
  EXPECT_EQ(createRgbPalette(5, {3, 3, 3}, true, {}), createBlankPalette(5, true, {}));
}

TEST(SystemPalettes, AreThoseOfTheirCommands) {
  RecordingServices fakes;
  fakes.screenColors.resize(1500, {1, 2, 3});
  std::int32_t id = 2;
  for (const SystemPalette& row : systemPalettes()) {
    EXPECT_EQ(row.commandId, id);
    const Palette palette = createSystemPalette(id++, fakes);
    EXPECT_EQ(std::to_string(palette.getSize()) + ' ' + std::to_string(checksumOf(palette)),
              pinnedChecksum(std::string(row.name)));
    EXPECT_TRUE(selectedIndexes(palette).empty());
  }
  for (const std::int32_t none : {1, id, -1}) {
    EXPECT_EQ(createSystemPalette(none, fakes), createSystemPalette(9, fakes));
  }
  fakes.screenColors.clear();
  EXPECT_EQ(createSystemPalette(10, fakes).getSize(), 1);
}

TEST(FixedHalftone, HasWindowsColorsCubeAndGreys) {
  FixedHalftone screen;
  const Palette halftone = createSystemPalette(10, screen);
  EXPECT_EQ(halftone.getSize(), 256);
  EXPECT_EQ(part(halftone, 9, 12), "166,202,240 0,0,0 51,0,0 102,0,0");
  EXPECT_EQ(part(halftone, 224, 227), "204,255,255 255,255,255 12,12,12 24,24,24");
  EXPECT_EQ(part(halftone, 244, 247), "230,230,230 242,242,242 255,251,240 160,160,164");
}

TEST(NewPalette, ChecksStoresAndRefuses) {
  const std::map<std::string, NewPaletteKind> kinds{
      {"size", NewPaletteKind::sizeOnly}, {"blank", NewPaletteKind::blank}, {"rgb", NewPaletteKind::rgb}};
  for (const auto& row : readTable("new_palettes.txt")) {
    const NewPaletteKind kind = kinds.at(row.at(0));
    NewPaletteFields fields;
    auto& [red, green, blue] = fields.levels;
    std::istringstream(row.at(1)) >> fields.size >> fields.windowsColors >> red >> green >> blue;
    AppSettings settings;
    EXPECT_EQ(minimumSizeText(kind, fields), row.at(2)) << row[1];
    const auto accepted = acceptNewPalette(kind, fields, settings);
    EXPECT_EQ(accepted ? std::to_string(accepted->size) : std::string(accepted.error()), row.at(3)) << row[1];
    std::ostringstream stored;
    stored << settings.paletteSize << ' ' << settings.windowsColors;
    for (const std::uint8_t level : settings.rgbLevels) {
      stored << ' ' << int{level};
    }
    EXPECT_EQ(stored.str(), row.at(4)) << row[1];
  }
  EXPECT_EQ(newPaletteTitle(NewPaletteKind::sizeOnly), "Palette size");
  EXPECT_EQ(newPaletteTitle(NewPaletteKind::rgb), "New palette properties");
}

TEST(NewPalette, StartsWithTheSettings) {
  AppSettings settings;
  EXPECT_EQ(newPaletteFields(settings).size, 256);
  EXPECT_EQ(newPaletteFields(settings).levels, (RgbLevels{6, 7, 6}));
  settings.paletteSize = 0xFFFFFFFF;
  settings.rgbLevels = {0, 255, 1};
  settings.windowsColors = true;
  EXPECT_EQ(newPaletteFields(settings).size, 1024);
  EXPECT_EQ(newPaletteFields(settings).levels, (RgbLevels{1, 255, 1}));
  EXPECT_TRUE(newPaletteFields(settings).windowsColors);
  settings.paletteSize = 0;
  EXPECT_EQ(newPaletteFields(settings).size, 1);
}

}  // namespace
}  // namespace quillhue
