#include "formats/notes/format_notes.h"
#include "formats/standard/gif_file.h"

namespace quillhue {

namespace {

std::string explain(const ReaderInput& input) {
  return readGifFrame(input.source).globalEntries > 0 ? "" : "the palette belongs to the first image alone";
}

}  // namespace

constinit const PaletteNotes kGifNotes{"gif", explain};

}  // namespace quillhue
