#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "formats/images/image_loader.h"

namespace quillhue {

/// The bits of a pixel that hold its blue, green and red.
using BitMasks = std::array<std::uint32_t, 3>;

/// Where a device-independent bitmap has its parts: the header of 40 bytes or more, and what follows it, a palette and
/// behind it the pixels.
struct DibLayout {
  std::uint64_t header = 0;
  std::uint64_t palette = 0;
  /// For pixels of 16 and 32 bits; without them these have 5 or 8 bits a color.
  std::optional<BitMasks> masks{};
};

/// Loads a bitmap of 4, 8, 16, 24 or 32 bits a pixel, rows from bottom to top. Any other depth is refused with
/// `unsupportedDepth`.
[[nodiscard]] ImageResult loadDib(ByteSource& source, const DibLayout& layout, Failure unsupportedDepth);

}  // namespace quillhue
