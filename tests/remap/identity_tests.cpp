// The product against the literal rules, where a search that is not a scan and rows that run together can go wrong.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "remap/nearest_entry.h"
#include "remap/nearest_table.h"
#include "support/literal_remap.h"
#include "support/remap_cases.h"
#include "support/stopping_progress.h"

namespace quillhue {
namespace {

TEST(RemapIdentity, HoldsForRandomCases) {
  for (std::uint32_t seed = 1; seed <= 1500; ++seed) {
    CaseBytes bytes(20000, seed);
    ASSERT_EQ(differenceOf(bytes), "") << seed;
  }
}

// A flat image that a palette can't make up for: errors grow over all borders of cells until they wrap.
TEST(RemapIdentity, HoldsWhereErrorsLeaveAnyRange) {
  const MakeColor white = always({255, 255, 255});
  const MakeColor black = always({});
  const MakeColor& mixed = colorKinds()[0];
  CaseBytes random(100000, 9);
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
    const Palette palette = paletteOf(size, colorKinds()[static_cast<std::size_t>(kind)], random);
    const WorkImage image = imageOf(101, 140, 500, color, random);
    Remapper remapper(palette);
    for (const auto& grid : {std::optional<ProtectGrid>(), {{64, 1000}}}) {
      EXPECT_EQ(differenceOf(remapper, image, palette, {RemapMode::dither, {}, grid}), "") << size << ' ' << kind;
    }
  }
}

// Large images take another way to the nearest colors.
TEST(RemapIdentity, HoldsForLargeImages) {
  CaseBytes random(4'000'000, 13);
  const Palette palette = paletteOf(3, colorKinds()[0], random);
  Remapper remapper(palette);
  EXPECT_EQ(differenceOf(remapper, imageOf(1031, 1024, 1, colorKinds()[0], random), palette, {}), "");
  EXPECT_EQ(differenceOf(remapper, imageOf(3, 3, 1, colorKinds()[0], random), palette, {}), "");
}

TEST(NearestTable, EqualsTheLiteralRules) {
  CaseBytes random(100000, 14);
  for (const std::int32_t size : {1, 5, 255, 256}) {
    for (const MakeColor& make : colorKinds()) {
      const Palette palette = paletteOf(size, make, random);
      const std::vector<PaletteEntry> entries = entriesOf(palette);
      NearestTable table(entries);
      const WorkImage image = imageOf(900, 1, 1, colorKinds()[random.upTo(2)], random);
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
  CaseBytes random(200000, 16);
  for (const std::int32_t size : {2, 24, 25, 256}) {
    for (const MakeColor& make : colorKinds()) {
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
  CaseBytes random(50000, 17);
  const std::vector<PaletteEntry> greys = entriesOf(paletteOf(100, colorKinds()[kGreys], random));
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
  CaseBytes random(100000, 15);
  const Palette palette = paletteOf(256, colorKinds()[3], random);
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
