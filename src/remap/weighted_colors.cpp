#include "remap/weighted_colors.h"

#include <cstdint>

namespace quillhue {

namespace {

// Sums over the colors of a cell, whose sides are 2^bits.
std::vector<WeightedColor> mergedColors(std::span<const CountedColor> colors, int bits) {
  const int cellBits = 8 - bits;
  // The place of each cell's color, plus 1.
  std::vector<std::uint32_t> places(std::size_t{1} << (3 * cellBits));
  struct Sum {
    Channels<double> color{};
    double weight = 0;
  };
  std::vector<Sum> sums;
  for (const auto& [color, pixels] : colors) {
    const std::size_t cell = static_cast<std::size_t>(color.red >> bits) << (2 * cellBits) |
                             static_cast<std::size_t>(color.green >> bits) << cellBits |
                             static_cast<std::size_t>(color.blue >> bits);
    if (places[cell] == 0) {
      sums.emplace_back();
      places[cell] = static_cast<std::uint32_t>(sums.size());
    }
    Sum& sum = sums[places[cell] - 1];
    sum.weight += pixels;
    sum.color[0] += static_cast<double>(pixels) * color.red;
    sum.color[1] += static_cast<double>(pixels) * color.green;
    sum.color[2] += static_cast<double>(pixels) * color.blue;
  }
  std::vector<WeightedColor> merged;
  merged.reserve(sums.size());
  for (const Sum& sum : sums) {
    const auto mean = [&](std::size_t channel) { return static_cast<float>(sum.color[channel] / sum.weight); };
    merged.push_back({{mean(0), mean(1), mean(2)}, static_cast<float>(sum.weight)});
  }
  return merged;
}

}  // namespace

std::vector<WeightedColor> weightedColors(std::span<const CountedColor> colors) {
  std::vector<WeightedColor> weighted;
  if (colors.size() <= kMostWeightedColors) {
    weighted.reserve(colors.size());
    for (const auto& [color, pixels] : colors) {
      weighted.push_back(
          {{static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue)},
           static_cast<float>(pixels)});
    }
    return weighted;
  }
  weighted = mergedColors(colors, 1);
  return weighted.size() <= kMostWeightedColors ? weighted : mergedColors(colors, 2);
}

}  // namespace quillhue
