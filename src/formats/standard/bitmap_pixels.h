#pragma once

#include "formats/images/image_loader.h"
#include "formats/standard/bitmap_header.h"

namespace quillhue {

/// Decodes the pixels of a bitmap. An image of up to 8 bits a pixel has a palette: 16 entries up to 4 bits, otherwise
/// 256. Entries missing from the color table are black. Pixels that a compressed image skips have index 0.
/// A pixel that is less than half opaque is transparent and blended with `blank`. Refuses a file that ends before its
/// pixels do with pictureDamaged. Throws std::bad_alloc.
[[nodiscard]] ImageResult readBitmapPixels(ByteSource& source, const BitmapHeader& header, PaletteEntry blank);

}  // namespace quillhue
