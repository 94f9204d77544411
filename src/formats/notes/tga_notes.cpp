#include "formats/notes/format_notes.h"

namespace quillhue {

namespace {

std::string explain(const ReaderInput& input) {
  ByteSource& source = input.source;
  const unsigned identifier = source.u8(0);
  const unsigned first = source.u16le(3);
  const unsigned bits = source.u8(7);
  return textOfParts("the header has ", source.u16le(5), " colors of ", bits, " bits",
                     first == 0 ? "" : textOfParts(" from index ", first),
                     identifier == 0 ? "" : textOfParts(" behind an identifier of ", identifier, " bytes"),
                     "; 256 colors of 24 bits are expected");
}

}  // namespace

constinit const PaletteNotes kTgaNotes{"tga", explain};

}  // namespace quillhue
