#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/palette.h"
#include "formats/work_image.h"

namespace quillhue {

/// Rows of palette indexes, a byte a pixel, from top to bottom, each of the paddedRowLength with zeros behind the
/// pixels.
struct IndexedPixels {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::span<const std::uint8_t> rows;
};

/// The bytes of a Windows Bitmap, stored from bottom to top: of 4 bits a pixel when the palette has 16 entries or
/// fewer, which keeps the low four bits of an index, and otherwise of 8. Colors that the palette has not are blank.
[[nodiscard]] std::vector<std::uint8_t> composeBitmap(const IndexedPixels& pixels, const Palette& palette,
                                                      PaletteEntry blank);

}  // namespace quillhue
