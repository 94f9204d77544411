#include "formats/notes/format_notes.h"

namespace quillhue {

namespace {

// Layout: "Photoshop File Formats" by Adobe, section "Color Table": after the 256 colors, a file may contain their
// number and the index of the transparent color, or FFFF.
std::string explain(const ReaderInput& input) {
  constexpr std::uint64_t kLengthWithCount = 772;
  constexpr std::uint16_t kNone = 0xFFFF;
  const std::uint16_t transparent = input.source.u16be(kLengthWithCount - 2);
  return input.source.size() != kLengthWithCount || transparent == kNone
             ? ""
             : textOfParts("entry ", transparent, " is transparent; its transparency is dropped");
}

}  // namespace

constinit const PaletteNotes kActNotes{"act", explain};

}  // namespace quillhue
