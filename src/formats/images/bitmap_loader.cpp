#include "formats/bitmap_layout.h"
#include "formats/images/dib.h"
#include "formats/images/image_loaders.h"

namespace quillhue {

namespace {

bool matches(ByteSource& source) { return matchTag(source, 0, "BM"); }

ImageResult load(ByteSource& source) {
  // kept on purpose: of the offset of the pixels only the low byte counts. It is where the palette stands: 54 in most
  // files, whose 8-bit pixels stand at 1078.
  return loadDib(source, {bitmap_layout::kFileHeader, source.u8(bitmap_layout::kPixelOffset)}, Failure::bitmapDepth);
}

}  // namespace

constinit const ImageLoader kBitmapLoader{"bmp", "*.bmp;*.dib", matches, load};

}  // namespace quillhue
