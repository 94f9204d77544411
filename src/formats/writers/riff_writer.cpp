#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  const std::int32_t size = palette.getSize();
  const auto entryBytes = static_cast<std::uint32_t>(size) * 4;
  sink.text(0, "RIFF");
  // kept on purpose: both sizes are 4 greater than the bytes that follow them, and readers rely on the second one.
  sink.u32le(4, entryBytes + 20);
  sink.text(8, "PAL data");
  sink.u32le(16, entryBytes + 8);
  sink.u16le(20, 0x0300);
  sink.u16le(22, static_cast<std::uint16_t>(size));
  composeQuads(palette, {.offset = 24, .count = size}, sink);
  sink.extend(sink.size() + 5);
}

}  // namespace

constinit const PaletteWriter kRiffWriter{
    .format = palette_format::kRiff,
    .name = "riff",
    .fileType = "RIFF Palette (*.pal)",
    .pattern = "*.pal",
    .extension = "pal",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = kAnySize,
    .compose = compose,
};

}  // namespace quillhue
