#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  sink.text(0, "GIMP Palette\n# Edited with Quillhue version " QUILLHUE_VERSION "\n");
  composeNumberLines(palette, ' ', "\n", sink);
}

}  // namespace

constinit const PaletteWriter kGimpWriter{
    .format = palette_format::kGimp,
    .name = "gimp",
    .fileType = "Gimp Palette",
    .pattern = "*",
    .extension = "gpl",
    .appendsExtension = false,
    .ownsExtension = true,
    .maxSize = kAnySize,
    .compose = compose,
};

}  // namespace quillhue
