#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_quad.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors by comparing them all.
class ColorScan {
 public:
  /// Takes at least one color.
  explicit ColorScan(std::span<const PaletteEntry> colors);

  [[nodiscard]] std::span<const PaletteEntry> colors() const { return colors_; }

  /// Returns the index of the first color with the smallest squared distance to `target`. The target may be any
  /// numbers: distances wrap to signed 32 bits.
  [[nodiscard]] std::uint8_t nearest(const ColorVector& target) const;

 private:
  // Four colors. The last quad is filled with the first color of all, which changes no result.
  struct Quad {
    ColorQuad colors;
    __m128i squaredLengths;
    __m128i indexes;
  };

  std::vector<PaletteEntry> colors_;
  std::vector<Quad> quads_;
};

}  // namespace quillhue
