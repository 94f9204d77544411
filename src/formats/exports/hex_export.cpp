#include "formats/exports/export_formats.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  for (const PaletteEntry& color : entriesOf(palette)) {
    sink.text(sink.size(), hexDigitsOf(color) + '\n');
  }
}

}  // namespace

constinit const ExportFormat kHexExport{
    .name = "hex",
    .title = "Hex list (*.hex)",
    .extension = "hex",
    .ownsExtension = true,
    .compose = compose,
};

}  // namespace quillhue
