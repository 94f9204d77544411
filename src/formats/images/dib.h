#pragma once

#include <cstdint>

#include "formats/images/image_loader.h"

namespace quillhue {

/// Where a device-independent bitmap has its parts: the header of 40 bytes or more, and what follows it, a palette and
/// behind it the pixels.
struct DibLayout {
  std::uint64_t header = 0;
  std::uint64_t palette = 0;
};

/// Loads a bitmap of 4, 8, 16, 24 or 32 bits a pixel, rows from bottom to top. Any other depth is refused with
/// `unsupportedDepth`.
[[nodiscard]] ImageResult loadDib(ByteSource& source, const DibLayout& layout, Failure unsupportedDepth);

}  // namespace quillhue
