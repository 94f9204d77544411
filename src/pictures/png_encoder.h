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

/// An image for a PNG file with a palette.
struct PngImage {
  IndexedPixels pixels;
  /// 1 to 256 entries. A pixel whose index has no entry gets index 0.
  std::span<const PaletteEntry> colors;
  /// Entries that are fully transparent; all others are opaque.
  std::bitset<256> transparent;
};

/// Returns the bytes of a PNG file (W3C Recommendation "Portable Network Graphics", color type 3). A pixel has the
/// fewest bits of 1, 2, 4 and 8 that the number of entries needs. The palette holds all entries in their order, used or
/// not. Fails with couldNotCreate when the system's encoder does. Throws std::bad_alloc.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composePng(const PngImage& image);

}  // namespace quillhue
