#include <vector>

#include "formats/notes/format_notes.h"
#include "formats/number_lines.h"
#include "formats/text_lines.h"

// The palettes of GIMP, CSV and MAP files: the default reading makes each line an entry.

namespace quillhue {

namespace {

bool beginsWithColor(std::string_view line) {
  const std::vector<std::uint8_t> text(line.begin(), line.end());
  NumberCursor cursor(text);
  cursor.skipBlanks();
  for (int i = 0; i < 3; ++i) {
    if (!cursor.atDigit()) {
      return false;
    }
    (void)cursor.byte();
    cursor.skipSeparator();
  }
  return true;
}

std::string explainLines(TextLines& lines, bool hasComments) {
  std::int32_t entries = 0;
  std::int32_t others = 0;
  for (auto line = lines.next(); line && entries < kMaxPaletteSize; line = lines.next()) {
    if (!hasComments || !line->starts_with('#')) {
      ++entries;
      others += beginsWithColor(*line) ? 0 : 1;
    }
  }
  if (others == 0) {
    return "";
  }
  return others == 1 ? "1 line without three numbers is read as an entry"
                     : textOfParts(others, " lines without three numbers are read as entries");
}

std::string explainList(const ReaderInput& input) {
  TextLines lines(input.source);
  return explainLines(lines, false);
}

std::string explainGimp(const ReaderInput& input) {
  TextLines lines(input.source);
  (void)lines.next();
  return explainLines(lines, true);
}

}  // namespace

constinit const PaletteNotes kCsvNotes{"csv", explainList};
constinit const PaletteNotes kMapNotes{"map", explainList};
constinit const PaletteNotes kGimpNotes{"gimp", explainGimp};

}  // namespace quillhue
