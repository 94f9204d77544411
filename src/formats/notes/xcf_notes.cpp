#include "formats/notes/format_notes.h"

namespace quillhue {

namespace {

std::string explain(const ReaderInput& input) {
  ByteSource& source = input.source;
  // "v011" at 9; version 0 is called "file".
  std::string version;
  for (std::uint64_t offset = 9; offset < 13; ++offset) {
    version += static_cast<char>(source.u8(offset));
  }
  if (version.starts_with('v') && version > "v003") {
    return "the file has version " + version + "; at most version v003 is expected";
  }
  return "the palette is not the first property of the file";
}

}  // namespace

constinit const PaletteNotes kXcfNotes{"xcf", explain};

}  // namespace quillhue
