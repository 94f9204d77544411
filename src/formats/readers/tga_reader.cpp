#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "TGA") && input.source.u8(0) == 0; }

ReadResult read(const ReaderInput& input) {
  // Byte 1 says whether there is a color map. A color map of 256 entries follows the header of 18 bytes.
  if (input.source.u8(1) != 1) {
    return std::unexpected(Failure::tgaNot8Bit);
  }
  return FilePalette{blueFirst(readTriples(input.source, 18, 256)), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kTgaReader{"tga", "TGA image", "name ends with TGA, byte 0 is 0", "*.tga", matches, read};

}  // namespace quillhue
