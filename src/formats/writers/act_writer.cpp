#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

constexpr std::int32_t kTableSize = 256;

void compose(const Palette& palette, PaletteEntry blank, ByteSink& sink) {
  composeTriples(palette, kTableSize, blank, 0, sink);
  if (palette.getSize() < kTableSize) {
    // The entry count and the index of the transparent entry (none), both big-endian.
    sink.bytes(sink.size(), {0, static_cast<std::uint8_t>(palette.getSize()), 0xFF, 0xFF});
  }
}

}  // namespace

constinit const PaletteWriter kActWriter{
    .format = palette_format::kAdobeColorTable,
    .name = "act",
    .fileType = "Adobe Color Table (*.act)",
    .pattern = "*.act",
    .extension = "act",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = 256,
    .compose = compose,
};

}  // namespace quillhue
