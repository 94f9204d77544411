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

/// Returns the color of each index in a bitmap that composeBitmap makes with this palette.
[[nodiscard]] std::array<PaletteEntry, kBitmapColors> bitmapColors(std::span<const PaletteEntry> palette,
                                                                   PaletteEntry blank);

/// Returns the bytes of a Windows Bitmap, stored from bottom to top. A palette of 16 entries or fewer gives 4 bits a
/// pixel, the low four bits of each index; a larger palette gives 8. Missing colors are filled with `blank`.
[[nodiscard]] std::vector<std::uint8_t> composeBitmap(const IndexedPixels& pixels, const Palette& palette,
                                                      PaletteEntry blank);

}  // namespace quillhue
