#pragma once

#include <cstdint>
#include <vector>

#include "core/palette_entry.h"
#include "formats/work_image.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Images as device-independent bitmaps, as programs exchange them on the clipboard: a header of 40 bytes, the colors,
/// rows from bottom to top. Throw std::bad_alloc.

/// `blank` stands for the colors that the image's palette has not.
[[nodiscard]] std::vector<std::uint8_t> clipboardBitmap(const RemappedImage& image, PaletteEntry blank);
/// Of 24 bits a pixel where the image has no palette.
[[nodiscard]] std::vector<std::uint8_t> clipboardBitmap(const WorkImage& image, PaletteEntry blank);

}  // namespace quillhue
