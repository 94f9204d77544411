#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  sink.text(0, "GIMP Palette\n# Edited with Quillhue version " QUILLHUE_VERSION "\n");
  composeNumberLines(palette, ' ', "\n", sink);
}

}  // namespace

constinit const PaletteWriter kGimpWriter{
    palette_format::kGimp, "gimp", "Gimp Palette", "*", "gpl", false, true, kAnySize, compose};

}  // namespace quillhue
