#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "formats/work_image.h"
#include "remap/eight_colors.h"
#include "remap/error_diffusion.h"

namespace quillhue {

/// Returns the index of the palette entry for each target. Targets may be any numbers up to 2^15.
using FindEntries = std::function<Lanes(const EightColors& targets)>;

/// The input of all kinds of dithering: the image, the palette, and the bounds of errors.
struct DitherInput {
  const WorkImage& image;
  std::span<const PaletteEntry> colors;
  FindEntries find;
  ErrorDiffusion::Limits limits;
};

/// The pixels of an image as packed colors, row by row. Protected and transparent pixels are marked.
class MarkedPixels {
 public:
  /// Uses the image, the palette and the limits of `input`, which must outlive this object.
  explicit MarkedPixels(const DitherInput& input);

  /// Reads a row. Valid until the next call.
  [[nodiscard]] std::span<const std::uint32_t> row(std::int32_t y);

  /// Returns whether dithering leaves this pixel of a row alone.
  [[nodiscard]] bool isMarked(std::uint32_t pixel) const { return pixel == mark_; }
  /// Returns the index for such pixels.
  [[nodiscard]] std::uint8_t markedIndex() const { return markedIndex_; }

 private:
  const DitherInput& input_;
  // The color of the protected entry, or one that no pixel has.
  std::uint32_t mark_;
  std::uint8_t markedIndex_;
  // The colors of the image's own palette.
  std::vector<std::uint32_t> ownColors_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace quillhue
