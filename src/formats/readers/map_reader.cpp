#include "formats/number_lines.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "MAP"); }

ReadResult read(const ReaderInput& input) {
  return FilePalette{readNumberLines(input.source, 0, HashLines::areEntries), palette_format::kMap};
}

}  // namespace

constinit const PaletteReader kMapReader{"map", "MAP palette", "name ends with MAP", "*.map", matches, read};

}  // namespace quillhue
