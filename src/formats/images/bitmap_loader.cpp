#include "formats/images/dib.h"
#include "formats/images/image_loaders.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kFileHeader = 14;

bool matches(ByteSource& source) { return matchTag(source, 0, "BM"); }

ImageResult load(ByteSource& source) {
  // kept on purpose: of the offset of the pixels only the low byte counts. It is where the palette stands: 54 in most
  // files, whose 8-bit pixels stand at 1078.
  return loadDib(source, {kFileHeader, source.u8(10)}, Failure::bitmapDepth);
}

}  // namespace

constinit const ImageLoader kBitmapLoader{"bmp", "*.bmp;*.dib", matches, load};

}  // namespace quillhue
