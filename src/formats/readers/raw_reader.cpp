#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool isCol(const ReaderInput& input) { return nameEndsWith(input.name, "COL"); }

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "PAL") || isCol(input); }

ReadResult read(const ReaderInput& input) {
  const std::uint64_t count = input.source.size() / 3;
  if (count < 1) {
    return std::unexpected(isCol(input) ? Failure::rawColTooSmall : Failure::rawPalTooSmall);
  }
  if (input.source.size() > std::uint64_t{kMaxPaletteSize} * 3) {
    return std::unexpected(isCol(input) ? Failure::rawColTooLarge : Failure::rawPalTooLarge);
  }
  return FilePalette{readTriples(input.source, 0, static_cast<std::int32_t>(count)), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kRawReader{"raw",         "Raw RGB palette", "name ends with PAL or COL",
                                         "*.col;*.pal", matches,           read};

}  // namespace quillhue
