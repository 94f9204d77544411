#include <utility>

#include "formats/number_lines.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "CSV"); }

ReadResult read(const ReaderInput& input) {
  auto [palette, isCut] = readNumberLines(input.source, 0, HashLines::areEntries);
  return FilePalette{std::move(palette), palette_format::kCsv | palette_format::kMayHoldMore, isCut};
}

}  // namespace

constinit const PaletteReader kCsvReader{"csv", "Comma-separated values", "name ends with CSV", "*.csv", matches, read};

}  // namespace quillhue
