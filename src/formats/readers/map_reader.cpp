#include <utility>

#include "formats/number_lines.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "MAP"); }

ReadResult read(const ReaderInput& input) {
  auto [palette, isCut] = readNumberLines(input.source, 0, HashLines::areEntries);
  return FilePalette{std::move(palette), palette_format::kMap, isCut};
}

}  // namespace

constinit const PaletteReader kMapReader{"map", "MAP palette", "name ends with MAP", "*.map", matches, read};

}  // namespace quillhue
