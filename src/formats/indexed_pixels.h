#pragma once

#include <cstdint>
#include <span>

namespace quillhue {

/// Rows of palette indexes, a byte a pixel, from top to bottom, each of the paddedRowLength with zeros behind the
/// pixels.
struct IndexedPixels {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::span<const std::uint8_t> rows;
};

}  // namespace quillhue
