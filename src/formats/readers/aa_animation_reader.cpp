#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "LPF "); }

ReadResult read(const ReaderInput& input) {
  return FilePalette{readQuads(input.source, 256, 256), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kAaAnimationReader{
    "aa-animation", "AA Pro animation", "signature LPF", "*.anm", matches, read};

}  // namespace quillhue
