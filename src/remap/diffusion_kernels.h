#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillhue {

/// How error diffusion spreads the error of a pixel.
struct DiffusionKernel {
  /// The pixel's own row and the two rows below.
  static constexpr std::int32_t kRows = 3;
  /// Number of columns to either side of the pixel.
  static constexpr std::int32_t kReach = 2;

  std::string_view name;
  /// The shares of the neighbors, as multiples of 1 / divisor, from the column -kReach to kReach. The pixel is in the
  /// middle of the first row; neighbors that are done before it have no share.
  std::array<std::array<std::uint8_t, 2 * kReach + 1>, kRows> weights;
  std::int32_t divisor;
};

/// The table of all kernels. The first is Floyd and Steinberg's.
[[nodiscard]] std::span<const DiffusionKernel> diffusionKernels();

}  // namespace quillhue
