// Compares the product with the reference in cases that a search other than a scan, or the parallel processing of rows,
// could get wrong.

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
  for (std::uint32_t seed = 1; seed <= 600; ++seed) {
    CaseBytes bytes(20000, seed);
    ASSERT_EQ(differenceOf(bytes), "") << seed;
  }
}

// A flat image far from all colors of the palette: errors grow across all borders of cells until they wrap.
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

// Large images use a table, unless their colors do not repeat.
TEST(RemapIdentity, HoldsForLargeImages) {
  CaseBytes random(10'000'000, 13);
  for (const auto& [size, levels] : {std::pair{3, 255}, {3, 15}, {30, 255}}) {
    const Palette palette = paletteOf(size, colorKinds()[0], random);
    const MakeColor noise = [levels](CaseBytes& bytes) { return bytes.colorUpTo(levels); };
    Remapper remapper(palette);
    EXPECT_EQ(differenceOf(remapper, imageOf(1031, 1024, 1, noise, random), palette, {}), "") << size << ' ' << levels;
    EXPECT_EQ(differenceOf(remapper, imageOf(3, 3, 1, noise, random), palette, {}), "");
  }
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
      // The second time, the table already contains all answers.
      for (int time = 0; time < 2; ++time) {
        std::ranges::fill(indexes, std::uint8_t{77});
        table.remapRow(image.row(0), indexes);
        EXPECT_TRUE(std::ranges::equal(indexes, expected.row(0)));
      }
    }
  }
}

// A color that is as near as a later one, but only in one corner of a cell.
TEST(NearestTable, TakesTheFirstInTheCornerOfACell) {
  const std::array<PaletteEntry, 2> entries{{{30, 30, 30}, {0, 0, 0}}};
  const std::array<std::uint8_t, 3> pixel{15, 15, 15};
  std::array<std::uint8_t, 1> index{77};
  NearestTable(entries).remapRow(pixel, index);
  EXPECT_EQ(index[0], 0);
}

void expectInBox(const ColorVector& target, const ColorBox& box) {
  for (std::size_t channel = 0; channel < target.size(); ++channel) {
    ASSERT_LE(box.low[channel], target[channel]) << target[channel];
    ASSERT_GE(box.high[channel], target[channel]) << target[channel];
  }
}

// Every value of a channel is in the box of its cell. Otherwise the cell's list would lack colors.
TEST(NearestEntry, HasAllNumbersInTheBoxesOfTheirCells) {
  for (std::int32_t number = -128; number <= 383; ++number) {
    const ColorVector target{number, 255 - number, -128};
    ASSERT_TRUE(NearGrid::has(EightColors::all(target))) << number;
    const std::size_t cell = lowHalfOf<0>(NearGrid::cellsOf(EightColors::all(target)));
    ASSERT_LT(cell, NearGrid::kCells) << number;
    ASSERT_NO_FATAL_FAILURE(expectInBox(target, NearGrid::boxOf(cell)));
  }
  for (const std::int32_t outside : {-129, 384}) {
    EXPECT_FALSE(NearGrid::has(EightColors::all({0, outside, 0}))) << outside;
  }
  for (std::int32_t number = -65405; number <= 65661; number += 1 + std::abs(number) / 512) {
    const ColorVector target{number, 256 - number, number / 5};
    const FarGrid::Distances distances = FarGrid::distancesOf(EightColors::all(target));
    ASSERT_LT(numberOf<0>(distances), std::size_t{FarGrid::kBeyond}) << number;
    const auto cell = static_cast<std::size_t>(numbersOf(FarGrid::cellsOf(EightColors::all(target), distances))[0]);
    ASSERT_LT(cell, FarGrid::kCells) << number;
    ASSERT_NO_FATAL_FAILURE(expectInBox(target, FarGrid::boxOf(cell)));
  }
  for (const std::int32_t outside : {-65409, 65664, 2000000000}) {
    EXPECT_EQ(numberOf<0>(FarGrid::distancesOf(EightColors::all({0, outside, 0}))), std::size_t{FarGrid::kBeyond});
  }
}

void expectLiteral(NearestEntry& nearest, const std::array<ColorVector, 8>& targets) {
  const auto channel = [&](std::size_t number) {
    return lanesBy([&](std::size_t lane) { return targets[lane][number]; });
  };
  const EightNumbers found = numbersOf(nearest.find({channel(0), channel(1), channel(2)}));
  for (std::size_t i = 0; i < targets.size(); ++i) {
    ASSERT_EQ(found[i], literalNearest(nearest.colors(), targets[i])) << testing::PrintToString(targets[i]);
  }
}

TEST(NearestEntry, EqualsTheLiteralRulesAtAllBorders) {
  CaseBytes random(800000, 16);
  for (const std::int32_t size : {2, 24, 25, 256}) {
    for (const MakeColor& make : colorKinds()) {
      const std::vector<PaletteEntry> entries = entriesOf(paletteOf(size, make, random));
      NearestEntry nearest(entries, std::size_t{1} << 20);
      for (const std::int32_t border :
           {-65279, -26000, -16384, -1024, -128, 0, 256, 384, 1024, 16384, 26755, 32768, 37838, 46341, 65536}) {
        for (int i = 0; i < 12; ++i) {
          std::array<ColorVector, 8> targets{};
          for (ColorVector& target : targets) {
            std::ranges::generate(target,
                                  [&] { return random.upTo(3) == 0 ? random.upTo(255) : border - random.upTo(1); });
          }
          ASSERT_NO_FATAL_FAILURE(expectLiteral(nearest, targets)) << border;
        }
      }
    }
  }
}

// Tests targets in all directions and at all distances.
TEST(NearestEntry, EqualsTheLiteralRulesFarOut) {
  CaseBytes random(1000000, 19);
  for (const std::int32_t size : {5, 40, 256}) {
    for (const MakeColor& make : colorKinds()) {
      const std::vector<PaletteEntry> entries = entriesOf(paletteOf(size, make, random));
      NearestEntry nearest(entries, std::size_t{1} << 20);
      for (int i = 0; i < 400; ++i) {
        std::array<ColorVector, 8> targets{};
        const std::int32_t scale = 1 << (i % 11);
        for (ColorVector& target : targets) {
          std::ranges::generate(target, [&] { return (random.upTo(255) - 128) * scale + random.upTo(255) % scale; });
        }
        ASSERT_NO_FATAL_FAILURE(expectLiteral(nearest, targets));
      }
    }
  }
}

// Far targets on a palette of greys are replaced by nearer ones, except where distances wrap for some of the greys
// only: about the square root of 2^31 below 0.
TEST(NearestEntry, EqualsTheLiteralRulesForFarGreys) {
  CaseBytes random(50000, 17);
  const std::vector<PaletteEntry> greys = entriesOf(paletteOf(100, colorKinds()[kGreys], random));
  NearestEntry nearest(greys, std::size_t{1} << 20);
  const auto around = [&](std::int32_t middle, std::int32_t reach) {
    return middle + reach * (random.upTo(254) - 127) / 127;
  };
  for (int i = 0; i < 800; ++i) {
    std::array<ColorVector, 8> targets{};
    for (std::size_t lane = 0; lane < targets.size(); ++lane) {
      const std::int32_t far = std::array{-46341, 46341, -30000, 60000, 2000000000, 0}[lane % 6];
      targets[lane] = {around(far, 40), around(0, 300), around(i % 4 == 0 ? -far : 0, 300)};
      std::ranges::rotate(targets[lane], targets[lane].begin() + i % 3);
    }
    ASSERT_NO_FATAL_FAILURE(expectLiteral(nearest, targets)) << i;
  }
}

// Without memory for lists, all colors are compared. The results are the same.
TEST(NearestEntry, WorksWithoutMemoryForLists) {
  CaseBytes random(100000, 15);
  NearestEntry nearest(entriesOf(paletteOf(256, colorKinds()[3], random)), 0);
  for (int i = 0; i < 2000; ++i) {
    std::array<ColorVector, 8> targets{};
    for (ColorVector& target : targets) {
      std::ranges::generate(target, [&] { return i % 3 == 0 ? random.upTo(255) : 8 * random.upTo(40) - 160; });
    }
    ASSERT_NO_FATAL_FAILURE(expectLiteral(nearest, targets)) << i;
  }
}

}  // namespace
}  // namespace quillhue
