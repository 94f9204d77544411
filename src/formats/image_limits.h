#pragma once

#include <cstdint>
#include <optional>

#include "formats/failure.h"

namespace quillhue {

/// The greatest width or height, and the greatest number of pixels.
inline constexpr std::int64_t kMaxImageSide = 262144;
inline constexpr std::int64_t kMaxImagePixels = 268435456;

/// Checks the size of an image: returns imageTooSmall, imageTooLarge, or nothing.
[[nodiscard]] constexpr std::optional<Failure> checkImageSize(std::int64_t width, std::int64_t height) {
  if (width < 1 || height < 1) {
    return Failure::imageTooSmall;
  }
  if (width > kMaxImageSide || height > kMaxImageSide || width * height > kMaxImagePixels) {
    return Failure::imageTooLarge;
  }
  return std::nullopt;
}

}  // namespace quillhue
