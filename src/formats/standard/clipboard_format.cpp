#include <algorithm>

#include "formats/clipboard_directory.h"
#include "formats/standard/bitmap_header.h"
#include "formats/standard/bitmap_pixels.h"
#include "formats/standard/standard_formats.h"

// The bitmap in a Windows Clipboard file has no file header. Its pixels follow its color table.

namespace quillhue {

namespace {

bool isClipboardFile(ByteSource& source) { return source.u16le(0) == kClipboardFileId; }

ImageResult load(ByteSource& source, PaletteEntry blank) {
  const auto items = clipboardItems(source);
  // The last one of several bitmaps is read, as without --standard.
  const auto bitmap = std::ranges::find(items.rbegin(), items.rend(), kBitmapItem, &ClipboardItem::format);
  if (bitmap == items.rend()) {
    return std::unexpected(Failure::clipboardNoImages);
  }
  const auto header = readBitmapHeader(source, bitmap->data, {});
  return header ? readBitmapPixels(source, *header, blank) : std::unexpected(header.error());
}

}  // namespace

constinit const StandardLoader kStandardClipboardLoader{isClipboardFile, load};

}  // namespace quillhue
