#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  composeNumberLines(palette, ',', "\r\n", sink);
}

}  // namespace

constinit const PaletteWriter kCsvWriter{
    palette_format::kCsv, "csv", "Comma-separated values (*.csv)", "*.csv", "csv", true, true, 256, compose};

}  // namespace quillhue
