#include <utility>

#include "formats/standard/bitmap_header.h"
#include "formats/standard/bitmap_pixels.h"
#include "formats/standard/standard_formats.h"

namespace quillhue {

namespace {

bool isBitmapFile(ByteSource& source) { return matchTag(source, 0, "BM"); }

bool matches(const ReaderInput& input) { return isBitmapFile(input.source); }

ReadResult read(const ReaderInput& input) {
  const auto header = readBitmapFileHeader(input.source);
  if (!header) {
    return std::unexpected(header.error());
  }
  if (header->bits > 8) {
    auto image = readBitmapPixels(input.source, *header, {});
    return image ? ReadResult(*std::move(image)) : std::unexpected(image.error());
  }
  auto palette = readColorTable(input.source, *header);
  if (!palette) {
    return std::unexpected(palette.error());
  }
  return FilePalette{*std::move(palette), palette_format::kNone, header->entries > kMaxPaletteSize};
}

ImageResult load(ByteSource& source, PaletteEntry blank) {
  const auto header = readBitmapFileHeader(source);
  return header ? readBitmapPixels(source, *header, blank) : std::unexpected(header.error());
}

}  // namespace

constinit const PaletteReader kStandardBitmapReader{"bmp",         "Windows Bitmap", "signature BM",
                                                    "*.bmp;*.dib", matches,          read};
constinit const StandardLoader kStandardBitmapLoader{isBitmapFile, load};

}  // namespace quillhue
