#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return input.source.u32be(0) == 0x00030001; }

ReadResult read(const ReaderInput& input) {
  // A size between those of files with 16 and with 256 records.
  constexpr std::uint64_t kSmallestLargeFile = 701;
  const std::int32_t count = input.source.size() < kSmallestLargeFile ? 16 : 256;
  return FilePalette{readQuads(input.source, 4, count), palette_format::kColorTable};
}

}  // namespace

constinit const PaletteReader kColorTableReader{"color-table", "Color Table", "signature 00 03 00 01",
                                                "*.pal",       matches,       read};

}  // namespace quillhue
