#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "RIFF"); }

ReadResult read(const ReaderInput& input) {
  // kept on purpose: expects a data size that includes 8 bytes besides the entries, as our writer stores it. A file
  // whose data size includes only 4 loses its last entry.
  const std::int32_t count = (input.source.u16le(16) - 8) >> 2;
  if (count < 1 || count > kMaxPaletteSize) {
    return std::unexpected(Failure::riffTooLarge);
  }
  return FilePalette{readQuads(input.source, 24, count), palette_format::kRiff};
}

}  // namespace

constinit const PaletteReader kRiffReader{"riff", "RIFF palette", "signature RIFF", "*.pal", matches, read};

}  // namespace quillhue
