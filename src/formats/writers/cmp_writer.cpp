#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry blank, ByteSink& sink) {
  // The size of the table is a power of two, at least 16.
  std::uint16_t bits = 4;
  while (1 << bits < palette.getSize()) {
    ++bits;
  }
  sink.text(0, "ALCHCMPW");
  sink.bytes(8, {0, 1, 0, 0});
  sink.u16le(12, bits);
  composeTriples(palette, 1 << bits, blank, 14, sink);
}

}  // namespace

constinit const PaletteWriter kCmpWriter{
    .format = palette_format::kCmp,
    .name = "cmp",
    .fileType = "CMP Palette (*.cmp)",
    .pattern = "*.cmp",
    .extension = "cmp",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
