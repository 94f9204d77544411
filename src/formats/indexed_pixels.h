#pragma once

#include <cstdint>
#include <span>

namespace quillhue {

/// Rows of palette indexes from top to bottom, one byte a pixel. Each row is padded with zeros to its paddedRowLength.
struct IndexedPixels {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::span<const std::uint8_t> rows;
};

}  // namespace quillhue
