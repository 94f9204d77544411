#include "formats/bitmap_layout.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "BM"); }

ReadResult read(const ReaderInput& input) {
  const std::uint8_t bits = input.source.u8(kFileHeader + kBitCount);
  if (bits <= 8) {
    // kept on purpose: ignores the size of the header and the number of colors used. The table counts as full and
    // starts at offset 54.
    return FilePalette{blueFirst(readQuads(input.source, kFileHeader + kInfoHeader, 1 << bits)), palette_format::kNone};
  }
  if (bits != 16 && bits != 24 && bits != 32) {
    return std::unexpected(Failure::bitmapUnsupported);
  }
  const auto bitmap = TrueColorBitmap::open(input.source);
  if (!bitmap) {
    return std::unexpected(bitmap.error());
  }
  return *bitmap;
}

}  // namespace

constinit const PaletteReader kBitmapReader{"bmp", "Windows Bitmap", "signature BM", "*.bmp;*.dib", matches, read};

}  // namespace quillhue
