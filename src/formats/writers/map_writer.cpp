#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  composeNumberLines(palette, ' ', "\r\n", sink);
}

}  // namespace

constinit const PaletteWriter kMapWriter{
    palette_format::kMap, "map", "MAP Palette (*.map)", "*.map", "map", true, true, 256, compose};

}  // namespace quillhue
