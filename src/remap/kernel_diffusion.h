#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "remap/dither_input.h"
#include "remap/dither_options.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Error diffusion by any kernel, one row after the other. Errors are floats and don't cross the borders of a grid's
/// cells.
class KernelDiffusion {
 public:
  /// All arguments but `options` must outlive this object.
  KernelDiffusion(const DitherInput& input, const DitherOptions& options, RemappedImage& result);

  /// Remaps a row. Rows must be remapped in order, from 0.
  void remapRow(std::int32_t y);

 private:
  // Blue, green, red and an unused number.
  struct Error {
    __m128 channels;
  };
  struct Share {
    std::int32_t column;
    std::int32_t row;
    __m128 factor;
  };
  using ErrorRow = std::vector<Error>;

  void spread(const Error& error, std::size_t x, std::span<const Share> shares, std::ptrdiff_t step);

  const DitherInput& input_;
  DitherOptions options_;
  RemappedImage& result_;
  MarkedPixels pixels_;
  __m128 least_;
  __m128 greatest_;
  // In the order of their rows.
  std::vector<Share> shares_;
  // The errors for the current row and those below it.
  std::array<ErrorRow, DiffusionKernel::kRows> errors_;
};

}  // namespace quillhue
