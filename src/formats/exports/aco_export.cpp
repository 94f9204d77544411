#include "formats/exports/export_formats.h"

namespace quillhue {

namespace {

// Version 1, without names. A color is its model, 0 for RGB, and four words. The reader of this format describes the
// layout.
void compose(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  sink.u16be(0, 1);
  sink.u16be(2, static_cast<std::uint16_t>(palette.getSize()));
  for (const PaletteEntry& color : entriesOf(palette)) {
    const std::size_t record = sink.size();
    sink.extend(record + 10);
    sink.u16be(record + 2, static_cast<std::uint16_t>(257 * color.red));
    sink.u16be(record + 4, static_cast<std::uint16_t>(257 * color.green));
    sink.u16be(record + 6, static_cast<std::uint16_t>(257 * color.blue));
  }
}

}  // namespace

constinit const ExportFormat kAcoExport{
    .name = "aco",
    .title = "Photoshop swatches (*.aco)",
    .extension = "aco",
    .ownsExtension = true,
    .compose = compose,
};

}  // namespace quillhue
