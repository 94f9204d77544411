#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

// File versions: 16 colors in the header, or 256 colors after the image.
constexpr std::uint8_t kHeaderPalette = 2;
constexpr std::uint8_t kTrailingPalette = 5;
// The mark and 256 records of three bytes.
constexpr std::uint64_t kTrailerLength = 769;

bool matches(const ReaderInput& input) {
  const std::uint8_t version = input.source.u8(1);
  return input.source.u8(0) == 0x0A && (version == kHeaderPalette || version == kTrailingPalette) &&
         input.source.u8(2) == 1;
}

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  if (source.u8(1) == kHeaderPalette) {
    return FilePalette{readTriples(source, 16, 16), palette_format::kNone};
  }
  constexpr std::uint8_t kPaletteMark = 12;
  if (source.size() < kTrailerLength || source.u8(source.size() - kTrailerLength) != kPaletteMark) {
    return std::unexpected(Failure::pcxUnrecognised);
  }
  return FilePalette{readTriples(source, source.size() - kTrailerLength + 1, 256), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kPcxReader{"pcx", "PCX image", "bytes 0A 02 01 or 0A 05 01", "*.pcx", matches, read};

}  // namespace quillhue
