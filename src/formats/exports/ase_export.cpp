#include <bit>
#include <string>

#include "formats/exports/export_formats.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

// Writes a block of type 1 for a color, named by its hexadecimal digits. The reader of this format describes the
// layout.
void composeBlock(PaletteEntry color, ByteSink& sink) {
  constexpr std::uint16_t kColorBlock = 1;
  constexpr std::uint16_t kProcessColor = 2;
  const std::string name = '#' + hexDigitsOf(color);
  const auto units = static_cast<std::uint16_t>(name.size() + 1);
  const auto append16 = [&](std::uint16_t value) { sink.u16be(sink.size(), value); };
  const auto append32 = [&](std::uint32_t value) { sink.u32be(sink.size(), value); };
  append16(kColorBlock);
  append32(2U + 2U * units + 4 + 3 * 4 + 2);
  append16(units);
  for (const char letter : name) {
    append16(static_cast<std::uint8_t>(letter));
  }
  append16(0);
  sink.text(sink.size(), "RGB ");
  for (const std::uint8_t value : {color.red, color.green, color.blue}) {
    append32(std::bit_cast<std::uint32_t>(static_cast<float>(value) / 255));
  }
  append16(kProcessColor);
}

void compose(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  sink.text(0, "ASEF");
  sink.u16be(4, 1);
  sink.u32be(8, static_cast<std::uint32_t>(palette.getSize()));
  for (const PaletteEntry& color : entriesOf(palette)) {
    composeBlock(color, sink);
  }
}

}  // namespace

constinit const ExportFormat kAseExport{
    .name = "ase",
    .title = "Swatch Exchange (*.ase)",
    .extension = "ase",
    .ownsExtension = true,
    .compose = compose,
};

}  // namespace quillhue
