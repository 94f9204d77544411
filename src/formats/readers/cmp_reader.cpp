#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "ALCH"); }

ReadResult read(const ReaderInput& input) {
  const std::uint8_t bits = input.source.u8(12);
  if (bits > 10) {
    return std::unexpected(Failure::cmpTooLarge);
  }
  return FilePalette{readTriples(input.source, 14, 1 << bits), palette_format::kCmp};
}

}  // namespace

constinit const PaletteReader kCmpReader{"cmp", "CMP palette", "signature ALCH", "*.cmp", matches, read};

}  // namespace quillhue
