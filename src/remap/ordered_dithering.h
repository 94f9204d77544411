#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/dither_input.h"
#include "remap/dither_options.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Ordered dithering with a Bayer matrix: each pixel gets the entry nearest to its color plus an offset that depends on
/// the pixel's position, and that is the same for red, green and blue. In each cell of a grid the matrix begins anew.
class OrderedDithering {
 public:
  /// Arguments other than `options` must outlive this object.
  OrderedDithering(const DitherInput& input, const DitherOptions& options, RemappedImage& result);

  /// Remaps a row.
  void remapRow(std::int32_t y);

 private:
  const DitherInput& input_;
  RemappedImage& result_;
  MarkedPixels pixels_;
  std::size_t side_;
  // The offsets of the matrix, row by row.
  std::vector<std::int32_t> offsets_;
  // The matrix's column for each column of the image.
  std::vector<std::uint8_t> columns_;
};

/// Returns how far apart the colors of a palette are: the distance, in the channel that differs most, from a color to
/// the nearest other one, as the mean over all colors that have another one; 0 if there is only one color.
[[nodiscard]] double meanSpacing(std::span<const PaletteEntry> colors);

}  // namespace quillhue
