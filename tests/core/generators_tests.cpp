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

// Returns entries `first` to `last` as text.
std::string part(const Palette& palette, std::size_t first, std::size_t last) {
  const std::vector<PaletteEntry> entries = entriesOf(palette);
  return show(paletteOf(std::span(entries).subspan(first, last - first + 1)));
}

TEST(Generators, MakeWhatTheTableSays) {
  for (const auto& row : readTable("generated.txt")) {
    std::istringstream words(row.at(0));
    std::string kind;
    std::int32_t size = 0;
    bool windowsColors = false;
    RgbLevels levels{};
    words >> kind >> size >> windowsColors >> levels[0] >> levels[1] >> levels[2];
    FixedHalftone screen;
    const PaletteEntry blank{9, 9, 9};
    const Palette palette = kind == "grey"       ? createGreyscalePalette(size)
                            : kind == "rgb"      ? createRgbPalette(size, levels, windowsColors, blank)
                            : kind == "halftone" ? createSystemPalette(10, screen)
                                                 : createBlankPalette(size, windowsColors, blank);
    EXPECT_EQ(std::to_string(palette.getSize()), row.at(1)) << row[0];
    const std::size_t first = std::stoul(row.at(2));
    EXPECT_EQ(part(palette, first, first + static_cast<std::size_t>(std::ranges::count(row.at(3), ' '))), row[3])
        << row[0];
  }
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
