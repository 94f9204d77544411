#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  composeNumberLines(palette, ' ', "\r\n", sink);
}

}  // namespace

constinit const PaletteWriter kMapWriter{
    .format = palette_format::kMap,
    .name = "map",
    .fileType = "MAP Palette (*.map)",
    .pattern = "*.map",
    .extension = "map",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
