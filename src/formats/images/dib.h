#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "formats/images/image_loader.h"

namespace quillhue {

/// Masks of the bits of a pixel that contain blue, green and red.
using BitMasks = std::array<std::uint32_t, 3>;

/// Offsets in a device-independent bitmap: the header of 40 bytes or more, and the palette. The pixels follow the
/// palette.
struct DibLayout {
  std::uint64_t header = 0;
  std::uint64_t palette = 0;
  /// For pixels of 16 and 32 bits. Without masks each color has 5 or 8 bits.
  std::optional<BitMasks> masks{};
};

/// Loads a bitmap of 4, 8, 16, 24 or 32 bits a pixel, rows from bottom to top. Refuses any other depth with
/// `unsupportedDepth`.
[[nodiscard]] ImageResult loadDib(ByteSource& source, const DibLayout& layout, Failure unsupportedDepth);

}  // namespace quillhue
