#pragma once

#include <bitset>
#include <cstdint>
#include <expected>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "formats/failure.h"
#include "formats/indexed_pixels.h"

namespace quillhue {

/// An image to be written as a PNG file with a palette.
struct PngImage {
  IndexedPixels pixels;
  /// 1 to 256 entries. Pixels whose index has no entry get index 0.
  std::span<const PaletteEntry> colors;
  /// Indexes of fully transparent entries; all others are opaque.
  std::bitset<256> transparent;
};

/// Returns the bytes of a PNG file (W3C Recommendation "Portable Network Graphics", color type 3). Pixels have 1, 2, 4
/// or 8 bits, the fewest that the number of entries allows. The palette contains all entries in their order, used or
/// not. Refuses with couldNotCreate when the system's encoder fails. Throws std::bad_alloc.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composePng(const PngImage& image);

}  // namespace quillhue
