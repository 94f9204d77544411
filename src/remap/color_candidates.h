#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/eight_colors.h"

namespace quillhue {

/// The colors from `low` to `high`, both included. All numbers are from -65536 to 65536.
struct ColorBox {
  ColorVector low;
  ColorVector high;
};

/// Finds out which colors of a palette can be the nearest ones in a box of the color space.
class ColorCandidates {
 public:
  /// Takes at most 256 colors.
  explicit ColorCandidates(std::span<const PaletteEntry> colors);

  /// Returns indexes in ascending order. For every color of the box, the first of its nearest colors is among them.
  /// Returns none if there are more than `most` or that is likely. Valid until the next call.
  [[nodiscard]] std::span<const std::uint8_t> within(const ColorBox& box, std::size_t most);

 private:
  void scoreAtMiddle(const ColorBox& box);
  void keepUnbeatenBy(std::uint8_t winner, const ColorBox& box);
  void dropBeaten(const ColorBox& box, std::size_t most);
  [[nodiscard]] bool beats(std::uint8_t winner, std::uint8_t loser, const ColorBox& box) const;

  std::vector<ColorVector> colors_;
  std::vector<std::int32_t> squaredLengths_;
  // The colors by channel, for loops that a compiler vectorizes.
  std::array<std::vector<float>, 3> channels_;
  std::vector<float> floatLengths_;
  std::vector<float> middleScores_;
  std::vector<float> leads_;
  std::vector<std::uint8_t> rivals_;
  std::vector<std::uint8_t> candidates_;
};

}  // namespace quillhue
