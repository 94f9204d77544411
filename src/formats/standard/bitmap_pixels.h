#pragma once

#include "formats/images/image_loader.h"
#include "formats/standard/bitmap_header.h"

namespace quillhue {

/// Decodes the pixels of a bitmap. An image of 8 bits a pixel or fewer has a palette, of 16 entries up to 4 bits and of
/// 256 otherwise; those that the color table lacks are black. Pixels that a compressed image skips have index 0.
/// A pixel with an alpha of less than a half is transparent and blended with `blank`. Refuses with pictureDamaged a
/// file that ends before its pixels. Throws std::bad_alloc.
[[nodiscard]] ImageResult readBitmapPixels(ByteSource& source, const BitmapHeader& header, PaletteEntry blank);

}  // namespace quillhue
