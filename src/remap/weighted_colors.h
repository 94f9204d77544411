#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "core/counted_color.h"

namespace quillhue {

/// Red, green and blue from 0 to 255, or sums of them.
template <typename Number>
using Channels = std::array<Number, 3>;

[[nodiscard]] inline float squaredDistance(const Channels<float>& a, const Channels<float>& b) {
  const float red = a[0] - b[0];
  const float green = a[1] - b[1];
  const float blue = a[2] - b[2];
  return red * red + green * green + blue * blue;
}

/// A color, or the mean of similar colors, and its number of pixels.
struct WeightedColor {
  Channels<float> color;
  float weight;
};

/// Maximum number of weighted colors, which is that of the cells of 4 x 4 x 4 colors.
inline constexpr std::size_t kMostWeightedColors = std::size_t{1} << 18;

/// Returns the colors that have pixels. If there are more than kMostWeightedColors, those in a cell of 2 x 2 x 2 or, if
/// need be, 4 x 4 x 4 colors become one. Throws std::bad_alloc.
[[nodiscard]] std::vector<WeightedColor> weightedColors(std::span<const CountedColor> colors);

}  // namespace quillhue
