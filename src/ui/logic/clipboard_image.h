#pragma once

#include <cstdint>
#include <vector>

#include "core/palette_entry.h"
#include "formats/work_image.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Images as device-independent bitmaps for the clipboard (CF_DIB): a header of 40 bytes, the color table, and the rows
/// from bottom to top. All functions throw std::bad_alloc.

/// Fills missing colors of the color table with `blank`.
[[nodiscard]] std::vector<std::uint8_t> clipboardBitmap(const RemappedImage& image, PaletteEntry blank);
/// Makes a bitmap with 24 bits per pixel if the image has no palette.
[[nodiscard]] std::vector<std::uint8_t> clipboardBitmap(const WorkImage& image, PaletteEntry blank);

}  // namespace quillhue
