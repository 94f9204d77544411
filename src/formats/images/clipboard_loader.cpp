#include "formats/bitmap_layout.h"
#include "formats/clipboard_directory.h"
#include "formats/images/dib.h"
#include "formats/images/image_loaders.h"

namespace quillhue {

namespace {

bool matches(ByteSource& source) { return source.u16le(0) == kClipboardFileId; }

ImageResult load(ByteSource& source) {
  std::optional<std::uint64_t> bitmap;
  for (const ClipboardItem& item : clipboardItems(source)) {
    if (item.format == kBitmapItem) {
      bitmap = item.data;
    }
  }
  if (!bitmap) {
    return std::unexpected(Failure::clipboardNoImages);
  }
  return loadDib(source, {*bitmap, *bitmap + bitmap_layout::kInfoHeader}, Failure::bitmapDepth);
}

}  // namespace

constinit const ImageLoader kClipboardLoader{"clp", "*.clp", matches, load};

}  // namespace quillhue
