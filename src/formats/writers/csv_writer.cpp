#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  composeNumberLines(palette, ',', "\r\n", sink);
}

}  // namespace

constinit const PaletteWriter kCsvWriter{
    .format = palette_format::kCsv,
    .name = "csv",
    .fileType = "Comma-separated values (*.csv)",
    .pattern = "*.csv",
    .extension = "csv",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
