#include <utility>

#include "formats/number_lines.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "GIMP"); }

ReadResult read(const ReaderInput& input) {
  // kept on purpose: every line after "GIMP Palette" that is not a comment is an entry, including Name and Columns
  // lines.
  constexpr std::uint64_t kHeaderLength = 13;
  auto [palette, isCut] = readNumberLines(input.source, kHeaderLength, HashLines::areComments);
  return FilePalette{std::move(palette), palette_format::kGimp | palette_format::kMayHoldMore, isCut};
}

}  // namespace

constinit const PaletteReader kGimpReader{"gimp", "GIMP palette", "signature GIMP", "*.gpl", matches, read};

}  // namespace quillhue
