#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_groups.h"

namespace quillhue {

/// Blue, green and red.
using ColorVector = std::array<std::int32_t, 3>;

/// The colors from `low` to `high`, both included. All numbers are within -26000 .. 26000, so that squared distances to
/// what a palette holds stay below 2^31.
struct ColorBox {
  ColorVector low;
  ColorVector high;
};

/// Tells which of some colors can be the nearest ones to the colors of a box.
class ColorCandidates {
 public:
  /// Of at most 256 colors.
  explicit ColorCandidates(std::span<const PaletteEntry> colors);

  /// Indexes in ascending order, at least one: for every color of the box the first of its nearest is among them. Valid
  /// until the next call. With more `opponents`, for which each color is compared with so many others, there are fewer
  /// indexes, but where many colors are close together it takes longer than a short list saves.
  [[nodiscard]] std::span<const std::uint8_t> within(const ColorBox& box, std::size_t opponents);

 private:
  void keepReachable(const ColorBox& box);
  void dropBeaten(const ColorBox& box, std::size_t opponents);
  [[nodiscard]] bool beats(std::uint8_t winner, std::uint8_t loser, const ColorBox& box) const;

  std::vector<ColorVector> colors_;
  std::vector<DistanceGroup> groups_;
  std::vector<std::int32_t> squaredLengths_;
  // To the box, of all colors and of those that fill the last group up.
  std::vector<std::int32_t> leastDistances_;
  std::vector<std::int32_t> greatestDistances_;
  std::vector<std::uint8_t> candidates_;
  std::vector<std::uint8_t> opponents_;
};

}  // namespace quillhue
