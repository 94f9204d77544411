#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>

#include "remap/best_palette.h"
#include "remap/k_means.h"
#include "support/case_bytes.h"
#include "support/checksum.h"
#include "support/table.h"

namespace quillhue {
namespace {

using Colors = std::vector<CountedColor>;

// Returns clouds of colors around a few places.
Colors clouds(std::size_t count, std::uint32_t seed) {
  CaseBytes random(10 * count, seed);
  std::map<PaletteEntry, std::uint32_t> pixels;
  PaletteEntry middle;
  for (std::size_t i = 0; i < count; ++i) {
    middle = i % (count / 12 + 1) == 0 ? random.colorUpTo(200) : middle;
    const auto [red, green, blue] = random.colorUpTo(55);
    const PaletteEntry color{clampToByte(middle.red + red), clampToByte(middle.green + green),
                             clampToByte(middle.blue + blue / 2)};
    pixels[color] += random.upTo(9) == 0 ? 100U : 1U;
  }
  Colors colors;
  std::ranges::transform(pixels, std::back_inserter(colors),
                         [](const auto& each) { return CountedColor{each.first, each.second}; });
  return colors;
}

// The sum of squared distances, and the means of the colors that are nearest to each center, by a scan of all.
struct Assignment {
  double error = 0;
  std::vector<ColorSums> sums;
};
Assignment assign(const Colors& colors, const std::vector<Channels<float>>& centers) {
  Assignment result{0, std::vector<ColorSums>(centers.size())};
  for (const WeightedColor& color : weightedColors(colors)) {
    const auto nearest =
        std::ranges::min_element(centers, {}, [&](const auto& center) { return squaredDistance(center, color.color); });
    result.error += static_cast<double>(squaredDistance(*nearest, color.color) * color.weight);
    result.sums[static_cast<std::size_t>(nearest - centers.begin())].add(color);
  }
  return result;
}

TEST(BestPalette, TakesFewColorsAsTheyAre) {
  const Colors colors{{{9, 9, 9}, 1}, {{1, 2, 3}, 5}, {{200, 0, 0}, 2}};
  EXPECT_EQ(entriesOf(bestPalette(colors, 4, {7, 7, 7})),
            (std::vector<PaletteEntry>{{9, 9, 9}, {1, 2, 3}, {200, 0, 0}, {7, 7, 7}}));
  EXPECT_EQ(entriesOf(bestPalette(colors, 3, {})).back(), (PaletteEntry{200, 0, 0}));
  EXPECT_EQ(entriesOf(bestPalette({}, 2, {7, 7, 7})), std::vector<PaletteEntry>(2, {7, 7, 7}));
}

// A single entry is the mean. Two entries split the colors with the least remaining error, and are sorted by
// brightness.
TEST(BestPalette, FindsTheOptimumOfFewClusters) {
  const Colors colors{{{200, 100, 0}, 3}, {{204, 100, 0}, 1}, {{10, 20, 30}, 1}, {{12, 20, 30}, 1}};
  EXPECT_EQ(entriesOf(bestPalette(colors, 2, {})), (std::vector<PaletteEntry>{{11, 20, 30}, {201, 100, 0}}));
  EXPECT_EQ(entriesOf(bestPalette(colors, 1, {})), (std::vector<PaletteEntry>{{138, 73, 10}}));
}

// Starts with bad centers: all in one of five clusters.
TEST(KMeans, LeavesLocalMinima) {
  Colors colors;
  for (std::uint8_t place = 0; place < 250; place += 50) {
    for (std::uint8_t i = 0; i < 12; ++i) {
      const auto red = static_cast<std::uint8_t>(place + i % 4);
      colors.push_back({{red, static_cast<std::uint8_t>(i / 4), place}, 1});
    }
  }
  ColorTree tree(weightedColors(colors));
  tree.divideLeavesOver(4);
  const auto centers = kMeans(tree, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {0, 2, 0}});
  EXPECT_NEAR(assign(colors, centers).error, 5 * (12 * 1.25 + 12 * 2 / 3.0), 0.01);
}

// Another round, with a scan of all centers for each color, gains almost nothing.
TEST(KMeans, Converges) {
  for (const std::size_t count : {5U, 40U, 200U}) {
    const Colors colors = clouds(6000, 21);
    ColorTree tree(weightedColors(colors));
    const auto first = tree.divideInto(count);
    ASSERT_EQ(first.size(), count);
    tree.divideLeavesOver(8);
    const auto centers = kMeans(tree, first);
    const Assignment assigned = assign(colors, centers);
    double next = 0;
    std::ranges::for_each(assigned.sums, [&](const ColorSums& sums) { next += sums.spread(); });
    EXPECT_LT(assigned.error, assign(colors, first).error);
    EXPECT_LE(next, assigned.error * (1 + 1e-6));
    EXPECT_GT(next, assigned.error * (1 - 2e-5)) << count;
  }
}

// Many colors are merged into cells first, which costs little.
TEST(BestPalette, MergesManyColors) {
  const Colors colors = clouds(600000, 22);
  ASSERT_GT(colors.size(), kMostWeightedColors);
  const std::vector<WeightedColor> merged = weightedColors(colors);
  EXPECT_LE(merged.size(), kMostWeightedColors);
  ColorSums all;
  ColorSums kept;
  for (const auto& [color, pixels] : colors) {
    all.add(
        WeightedColor{{static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue)},
                      static_cast<float>(pixels)});
  }
  std::ranges::for_each(merged, [&](const WeightedColor& color) { kept.add(color); });
  EXPECT_EQ(kept.weight, all.weight);
  EXPECT_NEAR(kept.spread() / all.spread(), 1, 0.01);
}

// The palette is the same on all systems and has no duplicates.
TEST(BestPalette, IsPinned) {
  const Colors colors = clouds(3000, 23);
  Checksum sum;
  for (const std::int32_t size : {2, 16, 256, 1024}) {
    std::vector<PaletteEntry> entries = entriesOf(bestPalette(colors, size, {}));
    std::ranges::for_each(entries, [&](const PaletteEntry& entry) { sum.add(entry); });
    EXPECT_TRUE(std::ranges::is_sorted(entries, {}, lumaOf));
    std::ranges::sort(entries);
    EXPECT_EQ(std::ranges::adjacent_find(entries), entries.end());
  }
  EXPECT_EQ(std::to_string(sum.value()), pinnedChecksum("best palettes"));
}

}  // namespace
}  // namespace quillhue
