#include "remap/ordered_dithering.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace quillhue {

namespace {

// Returns the rank of a place in the matrix of B. E. Bayer, "An optimum method for two-level rendition of
// continuous-tone pictures", IEEE International Conference on Communications (1973). The lowest bits of the coordinates
// decide the highest bits of the rank.
std::size_t rankAt(std::size_t x, std::size_t y, std::size_t side) {
  std::size_t rank = 0;
  for (std::size_t bit = 1; bit < side; bit *= 2) {
    const std::size_t row = (y & bit) != 0 ? 1 : 0;
    const std::size_t column = (x & bit) != 0 ? 1 : 0;
    rank = rank << 2 | (column ^ row) << 1 | row;
  }
  return rank;
}

}  // namespace

OrderedDithering::OrderedDithering(const DitherInput& input, const DitherOptions& options, RemappedImage& result)
    : input_(input), result_(result), pixels_(input), side_(static_cast<std::size_t>(options.matrixSide)) {
  const double amplitude = meanSpacing(input.colors) * options.strength / DitherOptions::kFullStrength;
  const auto ranks = static_cast<double>(side_ * side_);
  for (std::size_t y = 0; y < side_; ++y) {
    for (std::size_t x = 0; x < side_; ++x) {
      const double share = (static_cast<double>(rankAt(x, y, side_)) + 0.5) / ranks - 0.5;
      offsets_.push_back(static_cast<std::int32_t>(std::lround(amplitude * share)));
    }
  }
  const auto gridWidth = static_cast<std::size_t>(input.limits.gridWidth);
  columns_.resize(static_cast<std::size_t>(result.width()));
  for (std::size_t x = 0; x < columns_.size(); ++x) {
    columns_[x] = static_cast<std::uint8_t>(x % gridWidth % side_);
  }
}

void OrderedDithering::remapRow(std::int32_t y) {
  const auto pixels = pixels_.row(y);
  const auto indexes = result_.row(y);
  const auto* const offsets = &offsets_[static_cast<std::size_t>(y % input_.limits.gridHeight) % side_ * side_];
  for (std::size_t first = 0; first < pixels.size(); first += Lanes::kCount) {
    const std::size_t count = std::min(Lanes::kCount, pixels.size() - first);
    const auto placeOf = [&](std::size_t lane) { return first + std::min(lane, count - 1); };
    const Lanes offset = lanesBy([&](std::size_t lane) { return offsets[columns_[placeOf(lane)]]; });
    // The highest byte is not part of a color.
    const Lanes eight = lanesBy([&](std::size_t lane) { return pixels[placeOf(lane)] & 0xFFFFFF; });
    const EightNumbers found = numbersOf(input_.find(colorsOfPixels(eight) + EightColors{offset, offset, offset}));
    for (std::size_t lane = 0; lane < count; ++lane) {
      indexes[first + lane] =
          pixels_.isMarked(pixels[first + lane]) ? pixels_.markedIndex() : static_cast<std::uint8_t>(found[lane]);
    }
  }
}

double meanSpacing(std::span<const PaletteEntry> colors) {
  double sum = 0;
  double count = 0;
  for (const PaletteEntry& color : colors) {
    constexpr int kNone = 256;
    int least = kNone;
    for (const PaletteEntry& other : colors) {
      const int distance = std::max(
          {std::abs(color.red - other.red), std::abs(color.green - other.green), std::abs(color.blue - other.blue)});
      least = distance == 0 ? least : std::min(least, distance);
    }
    sum += least == kNone ? 0 : least;
    count += least == kNone ? 0 : 1;
  }
  return count == 0 ? 0 : sum / count;
}

}  // namespace quillhue
