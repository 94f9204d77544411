#include <gtest/gtest.h>

#include "core/new_palette.h"
#include "core/system_palettes.h"
#include "support/checksum.h"
#include "support/fakes.h"
#include "support/palettes.h"

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
  const std::pair<std::int32_t, std::uint32_t> sizesAndChecksums[] = {
      {4, 0x239307A4},   {4, 0x1B9B05A6},   {4, 0x20EB06FA},  {16, 0xA8EA1794},   {64, 0xB2C15FA1},
      {256, 0xD1E62C69}, {256, 0x410B42CC}, {16, 0x968815C3}, {1024, 0x18701801},
  };
  std::int32_t id = 2;
  for (const auto& [size, checksum] : sizesAndChecksums) {
    const Palette palette = createSystemPalette(id, fakes);
    EXPECT_EQ(palette.getSize(), size) << id;
    EXPECT_EQ(checksumOf(palette), checksum) << id;
    EXPECT_TRUE(selectedIndexes(palette).empty());
    EXPECT_EQ(systemPalettes()[static_cast<std::size_t>(id) - 2].commandId, id);
    ++id;
  }
  for (const std::int32_t none : {1, 11, -1}) {
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
  constexpr auto kSizeOnly = NewPaletteKind::sizeOnly;
  constexpr auto kBlank = NewPaletteKind::blank;
  constexpr auto kRgb = NewPaletteKind::rgb;
  const std::string tooFewForColors = "The chosen palette size is not large enough to contain the specified colors.";
  const std::string tooFewForWindows = "The chosen palette size is not large enough to contain the Windows colors.";
  // What is typed, the text beside the size, the size or message that comes of it, and what the settings hold then.
  const struct {
    NewPaletteKind kind;
    NewPaletteFields fields;
    std::string minimum;
    std::string result;
    std::string stored;
  } cases[] = {
      {kSizeOnly, {0, true, {9, 9, 9}}, "(min. 1)", "1", "1 no 6,7,6"},
      {kSizeOnly, {5000, true, {9, 9, 9}}, "(min. 1)", "1024", "1024 no 6,7,6"},
      {kBlank, {20, true, {9, 9, 9}}, "(min. 20)", "20", "20 yes 6,7,6"},
      {kBlank, {19, true, {9, 9, 9}}, "(min. 20)", tooFewForWindows, "19 yes 6,7,6"},
      {kBlank, {1, false, {9, 9, 9}}, "(min. 1)", "1", "1 no 6,7,6"},
      {kRgb, {27, false, {3, 3, 3}}, "(min. 27)", "27", "27 no 3,3,3"},
      {kRgb, {46, true, {3, 3, 3}}, "(min. 47)", tooFewForColors, "46 yes 3,3,3"},
      {kRgb, {256, false, {256, -4, 0}}, "(min. 256)", "256", "256 no 0,1,1"},
      {kRgb, {255, false, {300, 1, 1}}, "(min. 256)", tooFewForColors, "255 no 0,1,1"},
      {kRgb, {1024, false, {256, 256, 256}}, "(min. 16777216)", tooFewForColors, "1024 no 0,0,0"},
  };
  for (const auto& [kind, fields, minimum, result, stored] : cases) {
    AppSettings settings;
    EXPECT_EQ(minimumSizeText(kind, fields), minimum);
    const auto accepted = acceptNewPalette(kind, fields, settings);
    EXPECT_EQ(accepted ? std::to_string(accepted->size) : std::string(accepted.error()), result);
    const auto& [red, green, blue] = settings.rgbLevels;
    EXPECT_EQ(std::to_string(settings.paletteSize) + (settings.windowsColors ? " yes " : " no ") +
                  show(createPalette(1, {red, green, blue})),
              stored);
  }
  EXPECT_EQ(newPaletteTitle(kSizeOnly), "Palette size");
  EXPECT_EQ(newPaletteTitle(kRgb), "New palette properties");
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
