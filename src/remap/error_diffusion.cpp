#include "remap/error_diffusion.h"

#include <algorithm>

namespace quillhue {

ErrorDiffusion::ErrorDiffusion(const NearestEntry& nearest, std::int32_t width, const Limits& limits)
    : nearest_(nearest),
      limits_(limits),
      above_(static_cast<std::size_t>(width)),
      below_(static_cast<std::size_t>(width)) {}

// The grid's cells do not stop these shares: what they leave across a border is not taken there.
void ErrorDiffusion::spread(std::int32_t x, const ColorVector& error) {
  const auto column = static_cast<std::size_t>(x);
  if (column > 0) {
    add(below_[column - 1], sixteenths(error, 3));
  }
  add(below_[column], sixteenths(error, 5));
  if (column + 1 < below_.size()) {
    add(below_[column + 1], sixteenths(error, 1));
  }
}

void ErrorDiffusion::remapRow(std::span<const std::uint8_t> source, std::span<std::uint8_t> indexes) {
  std::swap(above_, below_);
  std::ranges::fill(below_, ColorVector{});
  const bool takesAbove = row_ % limits_.gridHeight != 0;
  ColorVector carried{};
  for (std::int32_t x = 0; x < static_cast<std::int32_t>(indexes.size()); ++x) {
    const auto column = static_cast<std::size_t>(x);
    const ColorVector pixel{source[3 * column], source[3 * column + 1], source[3 * column + 2]};
    if (const auto& entry = limits_.protectedEntry; entry && pixel == nearest_.color(*entry)) {
      indexes[column] = *entry;
      carried = {};
      continue;
    }
    if (x % limits_.gridWidth == 0) {
      carried = {};
    }
    if (takesAbove) {
      add(carried, above_[column]);
    }
    ColorVector target = sixteenths(carried, 1);
    add(target, pixel);
    indexes[column] = nearest_.find(target);
    const ColorVector& chosen = nearest_.color(indexes[column]);
    for (std::size_t channel = 0; channel < carried.size(); ++channel) {
      carried[channel] = wrappingSum(carried[channel], 16 * (pixel[channel] - chosen[channel]));
    }
    spread(x, carried);
    carried = sixteenths(carried, 7);
  }
  ++row_;
}

}  // namespace quillhue
