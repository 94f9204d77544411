#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry blank, ByteSink& sink) {
  sink.bytes(0, {0, 3, 0, 1});
  composeQuads(palette, palette.getSize() <= 16 ? 16 : 256, blank, 0, 4, sink);
  // kept on purpose: every file is as long as the large table, so a palette of 16 entries opens again with 256.
  sink.extend(1032);
}

}  // namespace

constinit const PaletteWriter kColorTableWriter{
    palette_format::kColorTable, "color-table", "Color Table (*.pal)", "*.pal", "pal", true, false, 256, compose};

}  // namespace quillhue
