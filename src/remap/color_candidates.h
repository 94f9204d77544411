#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/eight_colors.h"

namespace quillhue {

/// The colors from `low` to `high`, both included. All numbers are from -65536 to 65791.
struct ColorBox {
  ColorVector low;
  ColorVector high;
};

/// Finds out which colors of a palette can be the nearest ones in a box of the color space.
class ColorCandidates {
 public:
  /// Takes 1 to 256 colors.
  explicit ColorCandidates(std::span<const PaletteEntry> colors);

  /// Returns the indexes of the colors that differ from all colors before them.
  [[nodiscard]] std::span<const std::uint8_t> all() const { return distinct_; }

  /// Returns some of the indexes `among`. For every color of the box, they include the first of its nearest colors if
  /// `among` includes it. Valid until the next call.
  [[nodiscard]] std::span<const std::uint8_t> within(const ColorBox& box, std::span<const std::uint8_t> among);

 private:
  // Indexes of colors, and the colors by channel for instructions that take four numbers.
  struct Columns {
    std::vector<std::uint8_t> indexes;
    std::array<std::vector<float>, 3> channels;
    std::vector<float> squaredLengths;

    explicit Columns(std::size_t most);
    void assign(const ColorCandidates& source, std::span<const std::uint8_t> among);
    void append(const Columns& other, std::size_t place);
    // Fills the last group of four with colors that are never the nearest.
    void complete();
  };

  [[nodiscard]] std::size_t nearestToMiddle(const Columns& columns, const ColorBox& box);
  void keepUnbeaten(const Columns& columns, const ColorBox& box);
  void dropBeaten(const ColorBox& box);

  std::vector<PaletteEntry> colors_;
  std::vector<std::uint8_t> distinct_;
  Columns all_;
  Columns some_;
  Columns rivals_;
  std::vector<float> scores_;
  std::vector<std::uint8_t> candidates_;
};

}  // namespace quillhue
