#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_vector.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors.
class NearestEntry {
 public:
  explicit NearestEntry(std::span<const PaletteEntry> colors);

  /// The index of the first color with the smallest squared distance to `target`, which may be any numbers: the
  /// distance wraps. 0 without colors.
  [[nodiscard]] std::uint8_t find(const ColorVector& target) const;

  /// The color of an index that find gave.
  [[nodiscard]] const ColorVector& color(std::uint8_t index) const { return colors_[index]; }

 private:
  std::vector<ColorVector> colors_;
};

}  // namespace quillhue
