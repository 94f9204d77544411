#include "core/commands/depth.h"

namespace quillhue {

namespace {

constexpr std::array<ColorDepth, 5> kDepths{{
    {"rgb444", {4, 4, 4}},
    {"rgb555", {5, 5, 5}},
    {"rgb565", {5, 6, 5}},
    {"vga6", {6, 6, 6}},
    {"rgb332", {3, 3, 2}},
}};

std::uint8_t reduced(std::int32_t value, std::int32_t bits) {
  const std::int32_t most = (1 << bits) - 1;
  const std::int32_t level = (value * most * 2 + 255) / (255 * 2);
  std::int32_t repeated = 0;
  for (std::int32_t shift = 8 - bits; shift > -bits; shift -= bits) {
    repeated |= shift >= 0 ? level << shift : level >> -shift;
  }
  return static_cast<std::uint8_t>(repeated);
}

}  // namespace

std::span<const ColorDepth> colorDepths() { return kDepths; }

void reduceDepth(PaletteDocument& document, ChannelMask mask, const ChannelBits& bits) {
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  document.recordColors();
  for (const std::int32_t index : indexes) {
    const PaletteEntry color = document.getColor(index);
    const PaletteEntry rounded{reduced(color.red, bits[0]), reduced(color.green, bits[1]),
                               reduced(color.blue, bits[2])};
    document.setColor(index, withChannels(color, mask, rounded));
  }
}

}  // namespace quillhue
