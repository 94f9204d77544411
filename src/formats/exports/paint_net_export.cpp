#include "formats/exports/export_formats.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  sink.text(0, "; paint.net Palette File\r\n");
  for (const PaletteEntry& color : entriesOf(palette)) {
    sink.text(sink.size(), "FF" + hexDigitsOf(color) + "\r\n");
  }
}

}  // namespace

constinit const ExportFormat kPaintNetExport{
    .name = "paint-net",
    .title = "Paint.NET palette (*.txt)",
    .extension = "txt",
    .ownsExtension = false,
    .compose = compose,
};

}  // namespace quillhue
