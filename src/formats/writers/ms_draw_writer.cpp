#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  constexpr std::size_t kHeaderLength = 54;
  sink.u8(0, 0x43);
  sink.u8(1, static_cast<std::uint8_t>(palette.getSize() - 1));
  sink.extend(kHeaderLength);
  // Black is implied: a black first entry is stored as the header's last four zeros, and readers add it again.
  const std::size_t firstRecord = palette.entry(0) == PaletteEntry{} ? kHeaderLength - 4 : kHeaderLength;
  composeQuads(palette, {.offset = firstRecord, .count = palette.getSize()}, sink);
}

}  // namespace

constinit const PaletteWriter kMsDrawWriter{
    .format = palette_format::kMsDraw,
    .name = "ms-draw",
    .fileType = "MS Draw Palette (*.pal)",
    .pattern = "*.pal",
    .extension = "pal",
    .appendsExtension = true,
    .ownsExtension = false,
    .maxSize = 101,
    .compose = compose,
};

}  // namespace quillhue
