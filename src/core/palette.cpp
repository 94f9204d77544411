#include "core/palette.h"

#include <algorithm>

namespace quillhue {

Palette::Palette(std::size_t size, PaletteEntry color)
    : channels_{std::vector(size, color.red), std::vector(size, color.green), std::vector(size, color.blue)},
      selected_(size, 0) {}

PaletteEntry Palette::entry(std::int32_t index) const {
  const auto at = static_cast<std::size_t>(index);
  return {channels_[0][at], channels_[1][at], channels_[2][at]};
}

void Palette::setEntry(std::int32_t index, PaletteEntry color) {
  const auto at = static_cast<std::size_t>(index);
  channels_[0][at] = color.red;
  channels_[1][at] = color.green;
  channels_[2][at] = color.blue;
}

Palette createPalette(std::int32_t size, PaletteEntry color) {
  return {static_cast<std::size_t>(std::max(1, size)), color};
}

Palette paletteOf(std::span<const PaletteEntry> entries) {
  Palette palette = createPalette(static_cast<std::int32_t>(entries.size()));
  std::int32_t index = 0;
  for (const PaletteEntry& color : entries) {
    palette.setEntry(index++, color);
  }
  return palette;
}

std::vector<PaletteEntry> entriesOf(const Palette& palette) {
  std::vector<PaletteEntry> entries;
  entries.reserve(static_cast<std::size_t>(palette.getSize()));
  for (std::int32_t index = 0; index < palette.getSize(); ++index) {
    entries.push_back(palette.entry(index));
  }
  return entries;
}

std::vector<std::int32_t> selectedIndexes(const Palette& palette) {
  std::vector<std::int32_t> indexes;
  for (std::int32_t index = 0; index < palette.getSize(); ++index) {
    if (palette.selected()[static_cast<std::size_t>(index)] != 0) {
      indexes.push_back(index);
    }
  }
  return indexes;
}

std::vector<PaletteEntry> selectedColors(const Palette& palette) {
  std::vector<PaletteEntry> colors;
  for (const std::int32_t index : selectedIndexes(palette)) {
    colors.push_back(palette.entry(index));
  }
  return colors;
}

Palette resizedCopy(const Palette& palette, std::int32_t newSize, PaletteEntry blank) {
  Palette resized = createPalette(newSize, blank);
  const auto kept = static_cast<std::size_t>(std::min(palette.getSize(), resized.getSize()));
  for (const Channel channel : kChannels) {
    std::ranges::copy(palette.channel(channel).first(kept), resized.channel(channel).begin());
  }
  std::ranges::copy(palette.selected().first(kept), resized.selected().begin());
  return resized;
}

}  // namespace quillhue
