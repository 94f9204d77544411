#include "formats/notes/format_notes.h"
#include "formats/text_lines.h"

namespace quillhue {

namespace {

std::string explain(const ReaderInput& input) {
  TextLines lines(input.source);
  (void)lines.next();
  (void)lines.next();
  return trimmed(lines.next().value_or("")) == "0" ? "the count is 0, but entries follow" : "";
}

}  // namespace

constinit const PaletteNotes kJascNotes{"jasc", explain};

}  // namespace quillhue
