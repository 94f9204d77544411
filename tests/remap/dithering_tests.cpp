// identity_tests.cpp compares random cases of all options with the reference. These tests check properties that the
// reference shares with the product.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "remap/ordered_dithering.h"
#include "remap/remap.h"
#include "support/remap_cases.h"
#include "support/stopping_progress.h"

namespace quillhue {
namespace {

std::vector<PaletteEntry> greys(std::initializer_list<int> levels) {
  std::vector<PaletteEntry> colors;
  for (const int level : levels) {
    const auto channel = static_cast<std::uint8_t>(level);
    colors.push_back({channel, channel, channel});
  }
  return colors;
}

// Returns the indexes of a dithered image in one color.
std::vector<std::uint8_t> dithered(const PaletteEntry& color, std::int32_t side,
                                   const std::vector<PaletteEntry>& colors, const RemapOptions& options) {
  CaseBytes none({});
  RemappedImage result;
  StoppingProgress progress;
  EXPECT_TRUE(remapImage(imageOf(side, side, 1, always(color), none), paletteOf(colors), options, result, progress));
  std::vector<std::uint8_t> indexes;
  for (std::int32_t y = 0; y < side; ++y) {
    indexes.insert(indexes.end(), result.row(y).begin(), result.row(y).end());
  }
  return indexes;
}

RemapOptions diffusion(const DitherOptions& details) { return {RemapMode::dither, {}, {}, false, details}; }
RemapOptions ordered(const DitherOptions& details) { return {RemapMode::ordered, {}, {}, false, details}; }

TEST(DiffusionKernels, PassOnTheWholeErrorToLaterPixels) {
  for (const DiffusionKernel& kernel : diffusionKernels()) {
    int sum = 0;
    for (const auto& row : kernel.weights) {
      sum += std::accumulate(row.begin(), row.end(), 0);
    }
    EXPECT_EQ(8 * sum / kernel.divisor, kernel.name == "atkinson" ? 6 : 8) << kernel.name;
    EXPECT_EQ(8 * sum % kernel.divisor, 0) << kernel.name;
    EXPECT_TRUE(std::ranges::all_of(kernel.weights[0].begin(), kernel.weights[0].begin() + 3, [](int weight) {
      return weight == 0;
    })) << kernel.name;
  }
}

// A grey dithered to black and white keeps its brightness. Atkinson's kernel gives more contrast on purpose.
TEST(KernelDiffusion, KeepsTheMeanColor) {
  for (const DiffusionKernel& kernel : diffusionKernels()) {
    for (const bool isSerpentine : {false, true}) {
      const auto indexes = dithered({51, 51, 51}, 100, greys({0, 255}), diffusion({&kernel, isSerpentine}));
      const auto white = std::ranges::count(indexes, 1);
      if (kernel.name == "atkinson") {
        EXPECT_LT(white, 1500);
      } else {
        EXPECT_NEAR(static_cast<double>(white), 2000, 60) << kernel.name;
      }
    }
  }
}

// A color that the palette can't mix accumulates errors, which appear in the white below it.
TEST(KernelDiffusion, LeavesNoGhostsWhenItClamps) {
  WorkImage image(30, 60, {});
  std::ranges::fill(image.pixels(), std::uint8_t{128});
  for (std::int32_t y = 0; y < 30; ++y) {
    std::ranges::fill(image.row(y), std::uint8_t{255});
  }
  RemappedImage result;
  StoppingProgress progress;
  const Palette palette = paletteOf(greys({0, 100, 150}));
  for (const bool clamps : {false, true}) {
    (void)remapImage(image, palette, diffusion({nullptr, true, clamps}), result, progress);
    EXPECT_EQ(std::ranges::count(result.row(40), 2) == 30, !clamps) << clamps;
  }
}

TEST(Dithering, IsNearestWithoutStrength) {
  const auto colors = greys({0, 60, 110, 255});
  EXPECT_EQ(dithered({70, 70, 70}, 9, colors, diffusion({nullptr, true, false, 0})), std::vector<std::uint8_t>(81, 1));
  EXPECT_EQ(dithered({70, 70, 70}, 9, colors, ordered({nullptr, false, false, 0})), std::vector<std::uint8_t>(81, 1));
}

// 16 levels of a matrix of 4 x 4 between black and white.
TEST(OrderedDithering, GivesEachLevelItsShare) {
  for (int level = 0; level <= 16; ++level) {
    const auto grey = static_cast<std::uint8_t>(level * 255 / 16);
    const auto indexes = dithered({grey, grey, grey}, 8, greys({0, 255}), ordered({nullptr, false, false, 100, 4}));
    EXPECT_EQ(std::ranges::count(indexes, 1), 4 * level) << level;
  }
  EXPECT_EQ(dithered({128, 128, 128}, 2, greys({0, 255}), ordered({nullptr, false, false, 100, 2})),
            (std::vector<std::uint8_t>{0, 1, 1, 0}));
}

TEST(OrderedDithering, MeasuresHowFarColorsAreApart) {
  EXPECT_EQ(meanSpacing(greys({0, 255})), 255);
  EXPECT_EQ(meanSpacing(greys({0, 17, 34, 51, 51})), 17);
  EXPECT_EQ(meanSpacing(greys({9, 9})), 0);
  EXPECT_EQ(meanSpacing(std::vector<PaletteEntry>{{0, 0, 0}, {10, 40, 0}, {12, 40, 40}}), 40);
}

}  // namespace
}  // namespace quillhue
