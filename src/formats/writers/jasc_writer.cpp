#include <string>

#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  // kept on purpose: the count is a byte, so the count of 256 entries is written as 0.
  const auto count = static_cast<std::uint8_t>(palette.getSize());
  sink.text(0, "JASC-PAL\r\n0100\r\n" + std::to_string(count) + "\r\n");
  composeNumberLines(palette, ' ', "\r\n", sink);
}

}  // namespace

constinit const PaletteWriter kJascWriter{
    .format = palette_format::kJasc,
    .name = "jasc",
    .fileType = "JASC Palette (*.pal)",
    .pattern = "*.pal",
    .extension = "pal",
    .appendsExtension = true,
    .ownsExtension = false,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
