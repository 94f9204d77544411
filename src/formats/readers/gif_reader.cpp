#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "GIF8"); }

ReadResult read(const ReaderInput& input) {
  const std::uint8_t flags = input.source.u8(10);
  if ((flags & 0x80) == 0) {
    return std::unexpected(Failure::gifNoGlobalPalette);
  }
  return FilePalette{readTriples(input.source, 13, 2 << (flags & 7)), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kGifReader{"gif", "GIF image", "signature GIF8", "*.gif", matches, read};

}  // namespace quillhue
