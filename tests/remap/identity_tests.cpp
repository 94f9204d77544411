// The product against the literal rules, where a search that is not a scan and rows that run together can go wrong.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <random>

#include "remap/nearest_entry.h"
#include "remap/nearest_table.h"
#include "remap/remap.h"
#include "support/literal_remap.h"
#include "support/stopping_progress.h"

namespace quillhue {
namespace {

// Numbers from 0 to `limit`.
class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}
  std::uint8_t upTo(std::uint32_t limit) { return static_cast<std::uint8_t>((engine_() >> 8) % (limit + 1)); }
  PaletteEntry colorUpTo(std::uint32_t limit) { return {upTo(limit), upTo(limit), upTo(limit)}; }

 private:
  std::minstd_rand engine_;
};

using MakeColor = std::function<PaletteEntry(Random& random)>;

MakeColor always(PaletteEntry color) {
  return [color](Random& /*random*/) { return color; };
}

// On and beside the borders of cells of 16.
std::uint8_t atBorder(Random& random) {
  return static_cast<std::uint8_t>(std::clamp(16 * random.upTo(16) + random.upTo(2) - 1, 0, 255));
}

const std::vector<MakeColor> kColorKinds{
    [](Random& random) { return random.colorUpTo(255); },
    // With many duplicates.
    [](Random& random) { return PaletteEntry{random.colorUpTo(1).red, 128, random.colorUpTo(2).blue}; },
    [](Random& random) { return PaletteEntry{atBorder(random), atBorder(random), atBorder(random)}; },
    // One-sided: dark, bright, a corner of its own, and one color.
    [](Random& random) { return random.colorUpTo(20); },
    [](Random& random) {
      const PaletteEntry dark = random.colorUpTo(20);
      return PaletteEntry{static_cast<std::uint8_t>(255 - dark.red), static_cast<std::uint8_t>(255 - dark.green),
                          static_cast<std::uint8_t>(255 - dark.blue)};
    },
    [](Random& random) { return PaletteEntry{random.upTo(9), 255, random.upTo(200)}; },
    always({1, 2, 3}),
    // Greys, and nearly so.
    [](Random& random) {
      const std::uint8_t level = random.upTo(255);
      return PaletteEntry{level, level, level};
    },
    [](Random& random) {
      const std::uint8_t level = random.upTo(254);
      return PaletteEntry{level, level, static_cast<std::uint8_t>(level + random.upTo(1))};
    },
};

Palette paletteOf(std::int32_t size, const MakeColor& make, Random& random) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 0; i < size; ++i) {
    palette.setEntry(i, make(random));
  }
  return palette;
}

// A color a pixel, in runs of `run` pixels.
WorkImage imageOf(std::int32_t width, std::int32_t height, std::size_t run, const MakeColor& make, Random& random) {
  WorkImage image(width, height, {});
  const auto pixels = image.pixels();
  PaletteEntry color;
  for (std::size_t i = 0; i < pixels.size(); i += 3) {
    if (i / 3 % run == 0) {
      color = make(random);
    }
    std::ranges::copy(std::array{color.blue, color.green, color.red}, pixels.subspan(i).begin());
  }
  return image;
}

// Compares the bytes and the reports of both, when the run is stopped after so many reports.
void expectLiteral(Remapper& remapper, const WorkImage& image, const Palette& palette, const RemapOptions& options,
                   int reports = 1000) {
  RemappedImage result;
  RemappedImage expected;
  StoppingProgress progress(reports);
  StoppingProgress expectedProgress(reports);
  EXPECT_EQ(remapper.remap(image, options, result, progress),
            literalRemap(image, palette, options, expected, expectedProgress));
  EXPECT_TRUE(std::ranges::equal(result.rows(), expected.rows()));
  EXPECT_EQ(progress.reports(), expectedProgress.reports());
}

void expectLiteral(const WorkImage& image, const Palette& palette, const RemapOptions& options, int reports = 1000) {
  Remapper remapper(palette);
  expectLiteral(remapper, image, palette, options, reports);
}

const std::vector<RemapOptions> kOptions{
    {RemapMode::nearest, {}, {}},
    {RemapMode::dither, {}, {}},
    {RemapMode::dither, {}, ProtectGrid{1, 1}},
    {RemapMode::dither, {}, ProtectGrid{3, 5}},
    {RemapMode::dither, {}, ProtectGrid{1000, 7}},
    {RemapMode::dither, 0, {}},
    {RemapMode::dither, 2, ProtectGrid{5, 3}},
};

TEST(RemapIdentity, HoldsForPalettesOfAllSizesAndKinds) {
  std::uint32_t seed = 0;
  for (const std::int32_t size : {1, 2, 3, 16, 17, 24, 25, 216, 255, 256, 300, 1024}) {
    for (std::size_t paletteKind = 0; paletteKind < kColorKinds.size(); ++paletteKind) {
      Random random(++seed);
      const Palette palette = paletteOf(size, kColorKinds[paletteKind], random);
      const MakeColor anEntry = [&](Random& source) { return palette.entry(source.upTo(255) % palette.getSize()); };
      // Of the palette's own kind, of another one, and colors of the palette itself.
      const std::array makers{kColorKinds[paletteKind], kColorKinds[seed % kColorKinds.size()], anEntry};
      for (std::size_t kind = 0; kind < makers.size(); ++kind) {
        const std::size_t run = kind == 0 ? 1 : 60;
        const WorkImage image = imageOf(29, 23, run, makers[kind], random);
        const RemapOptions& options = kOptions[(seed + kind) % kOptions.size()];
        SCOPED_TRACE(testing::Message() << size << " entries of kind " << paletteKind << ", image " << kind);
        expectLiteral(image, palette, options);
        expectLiteral(image, palette, {RemapMode::nearest, {}, {}});
        expectLiteral(image, palette, {RemapMode::dither, {}, {}});
      }
    }
  }
}

TEST(RemapIdentity, HoldsForSmallSizesAndAllOptions) {
  Random random(7);
  for (std::int32_t width = 1; width <= 20; ++width) {
    for (const std::int32_t height : {1, 2, 4, 5, 6, 17, 18, 21}) {
      const Palette palette = paletteOf(width + 14, kColorKinds[0], random);
      const WorkImage image = imageOf(width, height, 3, kColorKinds[0], random);
      for (const RemapOptions& options : kOptions) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        expectLiteral(image, palette, options);
      }
    }
  }
}

TEST(RemapIdentity, HoldsForIndexedImages) {
  Random random(8);
  for (const std::int32_t colors : {16, 256}) {
    WorkImage image(21, 35, paletteOf(colors, kColorKinds[0], random));
    std::ranges::generate(image.pixels(), [&] { return static_cast<std::uint8_t>(random.upTo(255) % colors); });
    for (const std::int32_t size : {2, 200}) {
      const Palette palette = paletteOf(size, kColorKinds[0], random);
      for (const RemapOptions& options : kOptions) {
        expectLiteral(image, palette, options);
      }
      expectLiteral(image, palette, {RemapMode::maintain, {}, {}});
    }
  }
}

// A flat image that a palette can't make up for: errors grow over all borders of cells until they wrap.
TEST(RemapIdentity, HoldsWhereErrorsLeaveAnyRange) {
  const MakeColor white = always({255, 255, 255});
  const MakeColor black = always({});
  const MakeColor& mixed = kColorKinds[0];
  Random random(9);
  for (const auto& [size, kind, color] : {std::tuple{3, 3, white},
                                          {40, 3, white},
                                          {1, 3, white},
                                          {256, 3, white},
                                          {30, 4, black},
                                          {60, 5, black},
                                          {200, 7, mixed},
                                          {200, 8, mixed},
                                          {60, 5, mixed},
                                          {24, 4, mixed}}) {
    const Palette palette = paletteOf(size, kColorKinds[static_cast<std::size_t>(kind)], random);
    const WorkImage image = imageOf(101, 140, 500, color, random);
    SCOPED_TRACE(testing::Message() << size << " entries of kind " << kind);
    expectLiteral(image, palette, {RemapMode::dither, {}, {}});
    expectLiteral(image, palette, {RemapMode::dither, {}, ProtectGrid{64, 1000}});
  }
}

// Sides of a grid that are out of range count as the nearest ones.
TEST(RemapIdentity, HoldsForGridsOfAnySides) {
  Random random(18);
  const Palette palette = paletteOf(2, kColorKinds[0], random);
  for (const auto& [width, height] : {std::pair{1010, 1}, {1, 1010}, {20, 20}}) {
    const WorkImage image = imageOf(width, height, 1, kColorKinds[0], random);
    for (const std::int32_t side : {-5, 0, 1000, 5000}) {
      expectLiteral(image, palette, {RemapMode::dither, {}, ProtectGrid{side, 5}});
      expectLiteral(image, palette, {RemapMode::dither, {}, ProtectGrid{5, side}});
    }
  }
}

TEST(RemapIdentity, HoldsForProtectedColors) {
  Random random(10);
  Palette palette = paletteOf(50, kColorKinds[0], random);
  palette.setEntry(7, {9, 9, 9});
  palette.setEntry(30, {9, 9, 9});
  const MakeColor often = [](Random& source) {
    return source.upTo(2) == 0 ? PaletteEntry{9, 9, 9} : source.colorUpTo(255);
  };
  for (const MakeColor& make : {always({9, 9, 9}), often, kColorKinds[4]}) {
    const WorkImage image = imageOf(31, 33, 2, make, random);
    for (const std::int32_t entry : {7, 30, 49, 50, 256, -1}) {
      expectLiteral(image, palette, {RemapMode::dither, entry, {}});
      expectLiteral(image, palette, {RemapMode::dither, entry, ProtectGrid{4, 4}});
    }
  }
}

TEST(RemapIdentity, HoldsWhereverARunIsStopped) {
  Random random(11);
  const Palette palette = paletteOf(30, kColorKinds[0], random);
  const WorkImage image = imageOf(13, 70, 1, kColorKinds[0], random);
  for (const RemapOptions& options : kOptions) {
    for (int reports = 1; reports <= 6; ++reports) {
      expectLiteral(image, palette, options, reports);
    }
  }
}

// What was learned from one image serves the next.
TEST(RemapIdentity, HoldsForManyImagesOfOneRemapper) {
  Random random(12);
  const Palette palette = paletteOf(100, kColorKinds[0], random);
  Remapper remapper(palette);
  for (const std::int32_t side : {40, 20, 41}) {
    const WorkImage image = imageOf(side, side, 2, kColorKinds[0], random);
    for (const RemapOptions& options : kOptions) {
      expectLiteral(remapper, image, palette, options);
    }
  }
}

// Large images take another way to the nearest colors.
TEST(RemapIdentity, HoldsForLargeImages) {
  Random random(13);
  const Palette palette = paletteOf(3, kColorKinds[0], random);
  Remapper remapper(palette);
  expectLiteral(remapper, imageOf(1031, 1024, 1, kColorKinds[0], random), palette, {});
  expectLiteral(remapper, imageOf(3, 3, 1, kColorKinds[0], random), palette, {});
}

TEST(NearestTable, EqualsTheLiteralRules) {
  Random random(14);
  for (const std::int32_t size : {1, 5, 255, 256}) {
    for (const MakeColor& make : kColorKinds) {
      const Palette palette = paletteOf(size, make, random);
      const std::vector<PaletteEntry> entries = entriesOf(palette);
      NearestTable table(entries);
      const WorkImage image = imageOf(900, 1, 1, kColorKinds[random.upTo(2)], random);
      RemappedImage expected;
      StoppingProgress progress;
      (void)literalRemap(image, palette, {}, expected, progress);
      std::vector<std::uint8_t> indexes(900);
      // The second time everything is found already.
      for (int time = 0; time < 2; ++time) {
        std::ranges::fill(indexes, std::uint8_t{77});
        table.remapRow(image.row(0), indexes);
        EXPECT_TRUE(std::ranges::equal(indexes, expected.row(0)));
      }
    }
  }
}

// A color that is as near as another one in a single corner of a cell, and before it.
TEST(NearestTable, TakesTheFirstInTheCornerOfACell) {
  const std::array<PaletteEntry, 2> entries{{{30, 30, 30}, {0, 0, 0}}};
  const std::array<std::uint8_t, 3> pixel{15, 15, 15};
  std::array<std::uint8_t, 1> index{77};
  NearestTable(entries).remapRow(pixel, index);
  EXPECT_EQ(index[0], 0);
}

ColorLanes lanesOf(const std::array<std::int32_t, 3>& numbers) {
  return {_mm_setr_epi32(numbers[0], numbers[1], numbers[2], 0)};
}

// Every number of a channel is in the box of its cell, whose lists would else lack colors.
template <typename Cells>
void expectInBoxes(std::int32_t first, std::int32_t last) {
  for (std::int32_t number = first; number <= last; ++number) {
    const std::array target{number, first + last - number, first};
    const PackedColor color = packed(lanesOf(target));
    ASSERT_TRUE(Cells::has(color)) << number;
    const std::size_t cell = Cells::cellOf(color);
    ASSERT_LT(cell, Cells::kCount) << number;
    const ColorBox box = Cells::boxOf(cell);
    for (std::size_t channel = 0; channel < target.size(); ++channel) {
      ASSERT_LE(box.low[channel], target[channel]) << number;
      ASSERT_GE(box.high[channel], target[channel]) << number;
    }
  }
  for (const std::int32_t outside : {first - 1, last + 1}) {
    EXPECT_FALSE(Cells::has(packed(lanesOf({0, outside, 0})))) << outside;
  }
}

TEST(NearestEntry, HasAllNumbersInTheBoxesOfTheirCells) {
  expectInBoxes<NearCells>(-128, 383);
  expectInBoxes<FarCells>(-26000, 26000);
}

TEST(NearestEntry, EqualsTheLiteralRulesAtAllBorders) {
  Random random(16);
  for (const std::int32_t size : {2, 24, 25, 256}) {
    for (const MakeColor& make : kColorKinds) {
      const std::vector<PaletteEntry> entries = entriesOf(paletteOf(size, make, random));
      NearestEntry nearest(entries, std::size_t{1} << 20);
      for (const std::int32_t border : {-26000, -1024, -128, 0, 256, 384, 1024, 26001, 32768, 46341}) {
        for (int i = 0; i < 100; ++i) {
          std::array<std::int32_t, 3> target{};
          std::ranges::generate(target,
                                [&] { return random.upTo(3) == 0 ? random.upTo(255) : border - random.upTo(1); });
          ASSERT_EQ(nearest.find(lanesOf(target)), literalNearest(entries, target)) << border;
        }
      }
    }
  }
}

// Far targets of greys are brought back, but not where distances wrap for some of the greys only: about the square root
// of 2^31 below 0.
TEST(NearestEntry, EqualsTheLiteralRulesForFarGreys) {
  Random random(17);
  const std::vector<PaletteEntry> greys = entriesOf(paletteOf(100, kColorKinds[7], random));
  NearestEntry nearest(greys, std::size_t{1} << 20);
  const auto around = [&](std::int32_t middle, std::int32_t reach) {
    return middle + reach * (random.upTo(254) - 127) / 127;
  };
  for (int i = 0; i < 6000; ++i) {
    const std::int32_t far = std::array{-46341, 46341, -30000, 90000, 2000000000, 0}[static_cast<std::size_t>(i % 6)];
    std::array<std::int32_t, 3> target{around(far, 40), around(0, 300), around(i % 4 == 0 ? -far : 0, 300)};
    std::ranges::rotate(target, target.begin() + i % 3);
    ASSERT_EQ(nearest.find(lanesOf(target)), literalNearest(greys, target)) << i;
  }
}

// Without memory for lists all colors are compared, with the same results.
TEST(NearestEntry, WorksWithoutMemoryForLists) {
  Random random(15);
  const Palette palette = paletteOf(256, kColorKinds[3], random);
  const std::vector<PaletteEntry> entries = entriesOf(palette);
  NearestEntry without(entries, 0);
  NearestEntry with(entries, std::size_t{1} << 20);
  for (int i = 0; i < 30000; ++i) {
    ColorLanes target = lanesOfPixel(pixelOf(random.colorUpTo(i % 3 == 0 ? 255 : 40)));
    if (i % 2 == 0) {
      target = shiftedLeft<3>(target) - shiftedLeft<2>(lanesOfPixel(0x40FFFF));
    }
    ASSERT_EQ(without.find(target), with.find(target)) << i;
  }
}

}  // namespace
}  // namespace quillhue
