#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry blank, ByteSink& sink) {
  sink.bytes(0, {0, 3, 0, 1});
  composeQuads(palette, {.offset = 4, .count = palette.getSize() <= 16 ? 16 : 256, .blank = blank}, sink);
  // kept on purpose: every file is as long as the large table, so a palette of 16 entries opens again with 256.
  sink.extend(1032);
}

}  // namespace

constinit const PaletteWriter kColorTableWriter{
    .format = palette_format::kColorTable,
    .name = "color-table",
    .fileType = "Color Table (*.pal)",
    .pattern = "*.pal",
    .extension = "pal",
    .appendsExtension = true,
    .ownsExtension = false,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
