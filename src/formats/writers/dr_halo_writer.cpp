#include "formats/dr_halo_layout.h"
#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry blank, ByteSink& sink) {
  sink.bytes(0, {0x41, 0x48, 0xE3});
  for (const std::size_t offset : {11U, 13U, 15U, 17U}) {
    sink.u8(offset, 0xFF);
  }
  for (std::int32_t i = 0; i < dr_halo::kEntries; ++i) {
    const PaletteEntry color = entryOr(palette, i, blank);
    sink.bytes(dr_halo::recordOffset(i), {color.red, 0, color.green, 0, color.blue, 0});
  }
}

}  // namespace

constinit const PaletteWriter kDrHaloWriter{
    .format = palette_format::kDrHalo,
    .name = "dr-halo",
    .fileType = "Dr. Halo Palette (*.pal)",
    .pattern = "*.pal",
    .extension = "pal",
    .appendsExtension = true,
    .ownsExtension = false,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
