#include <gtest/gtest.h>

#include <algorithm>

#include "remap/remap.h"
#include "support/checksum.h"
#include "support/palettes.h"
#include "support/stopping_progress.h"
#include "support/table.h"

namespace quillhue {
namespace {

Palette paletteWith(std::initializer_list<PaletteEntry> entries) {
  return paletteOf({entries.begin(), entries.size()});
}

// Pixels row by row: indexes, or red, green and blue values.
WorkImage imageOf(std::int32_t width, std::int32_t height, std::optional<Palette> palette, const Bytes& values) {
  WorkImage image(width, height, std::move(palette));
  const bool isIndexed = image.palette().has_value();
  for (std::size_t i = 0; i < values.size(); ++i) {
    image.pixels()[isIndexed ? i : i / 3 * 3 + 2 - i % 3] = values[i];
  }
  return image;
}

std::string rowsOf(RemappedImage& result) {
  std::string text;
  for (std::int32_t y = 0; y < result.height(); ++y) {
    for (const std::uint8_t index : result.row(y)) {
      text += std::to_string(index) + ' ';
    }
  }
  return text;
}

std::string remapped(const WorkImage& image, const Palette& palette, const RemapOptions& options) {
  RemappedImage result;
  StoppingProgress progress;
  EXPECT_TRUE(remapImage(image, palette, options, result, progress));
  return rowsOf(result);
}

TEST(Remap, KeepsIndexesUpToTheNumberOfColors) {
  const WorkImage image = imageOf(5, 1, createPalette(256), {0, 2, 3, 4, 255});
  EXPECT_EQ(remapped(image, createPalette(3), {RemapMode::maintain, {}, {}}), "0 2 3 0 0 ");
  EXPECT_EQ(remapped(image, createPalette(300), {RemapMode::maintain, {}, {}}), "0 2 3 4 255 ");
  // An image of direct colors has no mapping to keep. The result of an earlier run must not remain visible.
  RemappedImage result;
  StoppingProgress progress;
  const WorkImage direct = imageOf(1, 1, {}, {9, 9, 9});
  const Palette palette = paletteWith({{0, 0, 0}, {9, 9, 9}});
  (void)remapImage(direct, palette, {RemapMode::nearest, {}, {}}, result, progress);
  EXPECT_EQ(rowsOf(result), "1 ");
  (void)remapImage(direct, palette, {RemapMode::maintain, {}, {}}, result, progress);
  EXPECT_EQ(rowsOf(result), "0 ");
}

TEST(Remap, TakesTheFirstOfTheNearest) {
  const Palette palette = paletteWith({{10, 0, 0}, {0, 10, 0}, {20, 0, 0}, {0, 10, 0}});
  const Bytes colors{0, 10, 0, 15, 0, 0, 0, 0, 0, 255, 255, 255, 255, 255, 254};
  EXPECT_EQ(remapped(imageOf(5, 1, {}, colors), palette, {}), "1 0 0 2 2 ");
  // There is no color before a row's first pixel, not even black.
  EXPECT_EQ(remapped(imageOf(1, 1, {}, {0, 0, 0}), paletteWith({{9, 9, 9}, {0, 0, 0}}), {}), "1 ");
  const Palette own = paletteWith({{0, 10, 0}, {15, 0, 0}, {0, 0, 0}, {255, 255, 255}});
  EXPECT_EQ(remapped(imageOf(4, 1, resizedCopy(own, 16, {}), {3, 2, 1, 0}), palette, {}), "2 0 0 1 ");
  // Entries past 256 are never chosen.
  Palette large = createPalette(300, {100, 100, 100});
  large.setEntry(256, {1, 2, 3});
  EXPECT_EQ(remapped(imageOf(1, 1, {}, {1, 2, 3}), large, {}), "0 ");
}

// Errors that no color can compensate grow until they wrap.
TEST(Remap, WrapsWhereErrorsOverflow) {
  const WorkImage white = imageOf(40, 70, {}, Bytes(3 * 40 * 70, 255));
  const Palette dark = paletteWith({{0, 0, 0}, {0, 0, 1}, {2, 0, 0}});
  RemappedImage result;
  StoppingProgress progress;
  EXPECT_TRUE(remapImage(white, dark, {RemapMode::dither, {}, {}}, result, progress));
  Checksum sum;
  for (std::int32_t y = 0; y < 70; ++y) {
    std::ranges::for_each(result.row(y), [&](std::uint8_t index) { sum.add(index); });
  }
  EXPECT_EQ(std::to_string(sum.value()), pinnedChecksum("errors that wrap"));
}

// identity_tests.cpp compares other points at which a run stops with the reference.
TEST(Remap, LeavesTheRowsOfAnEarlierRunWhenItStops) {
  const WorkImage image = imageOf(3, 50, {}, Bytes(3 * 3 * 50, 255));
  RemappedImage result;
  StoppingProgress second(2);
  const Palette palette = paletteWith({{0, 0, 0}, {255, 255, 255}});
  EXPECT_FALSE(remapImage(image, palette, {RemapMode::dither, {}, {}}, result, second));
  EXPECT_EQ(second.reports(), (std::vector{1, 17}));
  StoppingProgress first(1);
  EXPECT_FALSE(remapImage(image, createPalette(1), {}, result, first));
  EXPECT_EQ(std::ranges::count(rowsOf(result), '1'), 3 * 16);
  EXPECT_EQ(result.colors().size(), 1U);
  // Rows are padded with zeros to a multiple of 4.
  EXPECT_EQ(result.rows().size(), 4U * 50);
}

}  // namespace
}  // namespace quillhue
