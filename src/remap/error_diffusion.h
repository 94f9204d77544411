#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "formats/work_image.h"
#include "remap/nearest_entry.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Floyd and Steinberg's error diffusion, from left to right in every row, with errors in sixteenths of a step. Errors
/// are 32-bit numbers, never clamped, and wrap.
class ErrorDiffusion {
 public:
  /// The bounds of errors: a protected color, the cells of a grid (whose sides are at least 1), transparent pixels.
  struct Limits {
    std::optional<std::uint8_t> protectedEntry;
    std::int32_t gridWidth;
    std::int32_t gridHeight;
    /// Transparent pixels get any index, and neither take nor leave errors.
    bool skipsTransparent = false;
  };

  /// The number of rows that are remapped fastest together. One row alone waits for its own error at each pixel.
  static constexpr std::int32_t kRowsTogether = 8;

  virtual ~ErrorDiffusion() = default;
  ErrorDiffusion(const ErrorDiffusion&) = delete;
  ErrorDiffusion& operator=(const ErrorDiffusion&) = delete;

  /// Remaps the next `count` rows, 1 to kRowsTogether.
  virtual void remapRows(std::int32_t count) = 0;

 protected:
  ErrorDiffusion() = default;
};

/// Remaps from the first row of `image` on into `result`, which has the same size.
[[nodiscard]] std::unique_ptr<ErrorDiffusion> diffuseErrors(const WorkImage& image, NearestEntry& nearest,
                                                            const std::optional<ErrorDiffusion::Limits>& limits,
                                                            RemappedImage& result);

}  // namespace quillhue
