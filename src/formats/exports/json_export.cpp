#include "formats/exports/export_formats.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  for (const PaletteEntry& color : entriesOf(palette)) {
    sink.text(sink.size(), (sink.size() == 0 ? "[\n  \"#" : ",\n  \"#") + hexDigitsOf(color) + '"');
  }
  sink.text(sink.size(), "\n]\n");
}

}  // namespace

constinit const ExportFormat kJsonExport{
    .name = "json",
    .title = "JSON list of \"#rrggbb\" (*.json)",
    .extension = "json",
    .ownsExtension = true,
    .compose = compose,
};

}  // namespace quillhue
