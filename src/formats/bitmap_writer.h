#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette.h"
#include "formats/indexed_pixels.h"

namespace quillhue {

/// The number of colors in a bitmap of 8 bits a pixel.
inline constexpr std::size_t kBitmapColors = 256;

/// The color that each index has in a bitmap of composeBitmap with this palette.
[[nodiscard]] std::array<PaletteEntry, kBitmapColors> bitmapColors(std::span<const PaletteEntry> palette,
                                                                   PaletteEntry blank);

/// The bytes of a Windows Bitmap, stored from bottom to top: of 4 bits a pixel when the palette has 16 entries or
/// fewer, which keeps the low four bits of an index, and otherwise of 8. Colors that the palette has not are blank.
[[nodiscard]] std::vector<std::uint8_t> composeBitmap(const IndexedPixels& pixels, const Palette& palette,
                                                      PaletteEntry blank);

}  // namespace quillhue
