#pragma once

#include <cstdint>

#include "remap/diffusion_kernels.h"

namespace quillhue {

/// The details of error diffusion and of ordered dithering.
struct DitherOptions {
  static constexpr std::int32_t kFullStrength = 100;

  /// Error diffusion: a row of diffusionKernels(). Null is Floyd and Steinberg's.
  const DiffusionKernel* kernel = nullptr;
  /// Error diffusion: every second row runs from right to left, with the kernel mirrored.
  bool isSerpentine = false;
  /// Error diffusion: the sum of a pixel and the errors that it gets is clamped to colors, 0 to 255 a channel. Errors
  /// that no color of the palette can compensate then don't grow and leave no ghosts.
  bool clampsErrors = false;
  /// The percentage of the errors that is passed on, or of the matrix's full amplitude: 0 to kFullStrength. 0 gives the
  /// same result as the mode nearest.
  std::int32_t strength = kFullStrength;
  /// Ordered dithering: the number of rows and columns of the matrix, 2, 4, 8 or 16.
  std::int32_t matrixSide = 8;

  /// Returns whether error diffusion works as it does without options: Floyd and Steinberg's from left to right, with
  /// errors in sixteenths that are not clamped.
  [[nodiscard]] bool isPlainDiffusion() const {
    return (kernel == nullptr || kernel == diffusionKernels().data()) && !isSerpentine && !clampsErrors &&
           strength == kFullStrength;
  }
};

}  // namespace quillhue
