#include "formats/bitmap_layout.h"
#include "formats/images/dib.h"
#include "formats/images/image_loaders.h"

namespace quillhue {

namespace {

bool matches(ByteSource& source) { return matchTag(source, 0, "BM"); }

ImageResult load(ByteSource& source) {
  // kept on purpose: only the low byte of the pixel offset is used, as the offset of the palette. It is 54 in most
  // files: 8-bit pixels start at 1078, and the low byte of 1078 is 54.
  return loadDib(source, {bitmap_layout::kFileHeader, source.u8(bitmap_layout::kPixelOffset)}, Failure::bitmapDepth);
}

}  // namespace

constinit const ImageLoader kBitmapLoader{"bmp", "*.bmp;*.dib", matches, load};

}  // namespace quillhue
