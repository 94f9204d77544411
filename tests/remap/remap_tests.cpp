#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "remap/remap.h"
#include "support/checksum.h"
#include "support/palettes.h"
#include "support/stopping_progress.h"

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
  // Direct colors have none to keep, and a result of an earlier run does not shine through.
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
  // Nothing stands before a row's first pixel, not even black.
  EXPECT_EQ(remapped(imageOf(1, 1, {}, {0, 0, 0}), paletteWith({{9, 9, 9}, {0, 0, 0}}), {}), "1 ");
  const Palette own = paletteWith({{0, 10, 0}, {15, 0, 0}, {0, 0, 0}, {255, 255, 255}});
  EXPECT_EQ(remapped(imageOf(4, 1, resizedCopy(own, 16, {}), {3, 2, 1, 0}), palette, {}), "2 0 0 1 ");
  // Entries past 256 are never chosen.
  Palette large = createPalette(300, {100, 100, 100});
  large.setEntry(256, {1, 2, 3});
  EXPECT_EQ(remapped(imageOf(1, 1, {}, {1, 2, 3}), large, {}), "0 ");
}

// The sums come from another program, which was written from the rules: palettes of nine sizes, images of four, alone,
// dithered, with a protected color and with a grid, and palettes that are far too dark.
TEST(Remap, EqualsTheLiteralRules) {
  Checksum sum;
  std::uint32_t seed = 0;
  for (const std::int32_t entries : {1, 2, 3, 16, 17, 216, 255, 256, 300}) {
    for (const auto& [width, height] : {std::pair{1, 1}, {2, 5}, {7, 3}, {20, 18}}) {
      for (int kind = 0; kind < 4; ++kind) {
        for (const int darkening : {8, 1}) {
          std::minstd_rand random(++seed);
          const auto next = [&] { return static_cast<std::uint8_t>(random() >> 8); };
          Palette palette = createPalette(entries);
          for (std::int32_t i = 0; i < entries; ++i) {
            PaletteEntry color;
            for (const Channel channel : {Channel::blue, Channel::green, Channel::red}) {
              channelOf(color, channel) = static_cast<std::uint8_t>(next() / darkening);
            }
            palette.setEntry(i, color);
          }
          WorkImage image(width, height, {});
          std::ranges::generate(image.pixels(), next);
          RemapOptions options{kind == 0 ? RemapMode::nearest : RemapMode::dither, {}, {}};
          if (kind == 2) {
            options.protectedEntry = (entries - 1) % std::min(entries, kMaxUsedEntries);
            const PaletteEntry color = palette.entry(*options.protectedEntry);
            for (std::int32_t y = 0; y < height; ++y) {
              for (std::size_t x = 0; x < static_cast<std::size_t>(width); x += 3) {
                std::ranges::copy(std::array{color.blue, color.green, color.red}, image.row(y).subspan(3 * x).begin());
              }
            }
          } else if (kind == 3) {
            options.protectGrid = {3, 5};
          }
          RemappedImage result;
          StoppingProgress progress;
          EXPECT_TRUE(remapImage(image, palette, options, result, progress));
          for (std::int32_t y = 0; y < height; ++y) {
            std::ranges::for_each(result.row(y), [&](std::uint8_t index) { sum.add(index); });
          }
        }
      }
    }
  }
  EXPECT_EQ(sum.value(), 415575095U);
}

// Errors that nothing can make up for grow until they wrap.
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
  EXPECT_EQ(sum.value(), 3184858592U);
}

TEST(Remap, DithersIndexedImagesByTheirColors) {
  Palette own = createPalette(16, {100, 100, 100});
  own.setEntry(1, {200, 200, 200});
  const Palette target = paletteWith({{0, 0, 0}, {255, 255, 255}});
  Bytes indexes;
  Bytes colors;
  for (std::uint32_t i = 0; i < 90; ++i) {
    const auto index = static_cast<std::uint8_t>(i * i % 7 % 2);
    indexes.push_back(index);
    colors.insert(colors.end(), 3, own.entry(index).red);
  }
  const RemapOptions dither{RemapMode::dither, {}, {}};
  EXPECT_EQ(remapped(imageOf(9, 10, own, indexes), target, dither),
            remapped(imageOf(9, 10, {}, colors), target, dither));
}

TEST(Remap, ProtectionHasItsLimits) {
  const Palette palette = paletteWith({{0, 0, 0}, {255, 255, 255}, {120, 120, 120}});
  const WorkImage grey = imageOf(20, 20, {}, Bytes(3 * 20 * 20, 100));
  RemapOptions options{RemapMode::dither, {}, {}};
  const std::string plain = remapped(grey, palette, options);
  // Cells of one pixel leave nothing of the errors; sides out of range count as the nearest ones.
  for (const std::int32_t side : {1, 0, -5}) {
    options.protectGrid = {side, side};
    EXPECT_EQ(remapped(grey, palette, options), remapped(grey, palette, {}));
  }
  options.protectGrid = {5000, 1000};
  EXPECT_EQ(remapped(grey, palette, options), plain);
  const Palette extremes = paletteWith({{0, 0, 0}, {255, 255, 255}});
  for (const auto& [width, height] : {std::pair{1010, 1}, {1, 1010}}) {
    const WorkImage line = imageOf(width, height, {}, Bytes(3 * 1010, 100));
    const auto ditheredIn = [&](std::int32_t side) {
      return remapped(line, extremes, {RemapMode::dither, {}, ProtectGrid{side, side}});
    };
    EXPECT_EQ(ditheredIn(5000), ditheredIn(1000));
    EXPECT_TRUE(ditheredIn(5000) != remapped(line, extremes, {RemapMode::dither, {}, {}}));
  }
  // A color that is not there, and entries that no result can hold.
  for (const std::int32_t entry : {1, 3, 256, -1}) {
    EXPECT_EQ(remapped(grey, palette, {RemapMode::dither, entry, {}}), plain) << entry;
  }
  const WorkImage exact = imageOf(20, 20, {}, Bytes(3 * 20 * 20, 120));
  EXPECT_EQ(remapped(exact, palette, {RemapMode::dither, 2, {}}), remapped(exact, palette, {}));
}

TEST(Remap, StopsAtEveryReport) {
  const WorkImage image = imageOf(3, 50, {}, Bytes(3 * 3 * 50, 255));
  const Palette palette = paletteWith({{0, 0, 0}, {255, 255, 255}});
  for (const RemapMode mode : {RemapMode::nearest, RemapMode::dither}) {
    for (int stopAt = 1; stopAt <= 4; ++stopAt) {
      RemappedImage result;
      StoppingProgress progress(stopAt);
      EXPECT_FALSE(remapImage(image, palette, {mode, {}, {}}, result, progress));
      EXPECT_EQ(progress.reports().back(), 16 * stopAt - 15);
      const std::string rows = rowsOf(result);
      EXPECT_EQ(std::ranges::count(rows, '1'), 3 * (16 * stopAt - 15));
      // The rows of an earlier run stay where the size is the same.
      StoppingProgress first(1);
      EXPECT_FALSE(remapImage(image, createPalette(1), {mode, {}, {}}, result, first));
      EXPECT_EQ(std::ranges::count(rowsOf(result), '1'), 3 * (16 * stopAt - 16));
      EXPECT_EQ(result.colors().size(), 1U);
    }
  }
  StoppingProgress progress;
  RemappedImage result;
  EXPECT_TRUE(remapImage(imageOf(3, 50, createPalette(16), {}), palette, {}, result, progress));
  EXPECT_TRUE(progress.reports().empty());
  EXPECT_TRUE(
      remapImage(imageOf(3, 17, createPalette(16), {}), palette, {RemapMode::dither, {}, {}}, result, progress));
  EXPECT_EQ(progress.reports(), (std::vector{1, 17}));
  // Rows are padded with zeros to a multiple of 4.
  EXPECT_EQ(result.rows().size(), 4U * 17);
}

}  // namespace
}  // namespace quillhue
