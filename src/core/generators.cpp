#include "core/generators.h"

#include <algorithm>

namespace quillhue {

namespace {

// The Windows colors at one end of a palette.
using StaticColors = std::array<PaletteEntry, kWindowsColors / 2>;

// The 20 static colors of the Windows system palette (GetStockObject(DEFAULT_PALETTE)).
constexpr StaticColors kFrontColors{{{0, 0, 0},
                                     {128, 0, 0},
                                     {0, 128, 0},
                                     {128, 128, 0},
                                     {0, 0, 128},
                                     {128, 0, 128},
                                     {0, 128, 128},
                                     {192, 192, 192},
                                     {192, 220, 192},
                                     {166, 202, 240}}};
constexpr StaticColors kEndColors{{{255, 251, 240},
                                   {160, 160, 164},
                                   {128, 128, 128},
                                   {255, 0, 0},
                                   {0, 255, 0},
                                   {255, 255, 0},
                                   {0, 0, 255},
                                   {255, 0, 255},
                                   {0, 255, 255},
                                   {255, 255, 255}}};

void place(Palette& palette, std::int32_t first, const StaticColors& colors) {
  for (const PaletteEntry& color : colors) {
    if (first >= 0 && first < palette.getSize()) {
      palette.setEntry(first, color);
    }
    ++first;
  }
}

std::uint8_t levelValue(std::int32_t level, std::int32_t levels) {
  return levels < 2 ? std::uint8_t{0} : static_cast<std::uint8_t>(level * 255 / (levels - 1));
}

}  // namespace

void applyWindowsColors(Palette& palette) {
  place(palette, 0, kFrontColors);
  place(palette, palette.getSize() - kWindowsColors / 2, kEndColors);
}

Palette createBlankPalette(std::int32_t size, bool includeWindowsColors, PaletteEntry blank) {
  Palette palette = createPalette(size, blank);
  if (includeWindowsColors) {
    applyWindowsColors(palette);
  }
  return palette;
}

Palette createGreyscalePalette(std::int32_t size) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 1; i < palette.getSize(); ++i) {
    const auto grey = static_cast<std::uint8_t>(255 * i / (palette.getSize() - 1));
    palette.setEntry(i, {grey, grey, grey});
  }
  return palette;
}

Palette createRgbPalette(std::int32_t size, const RgbLevels& levels, bool includeWindowsColors, PaletteEntry blank) {
  Palette palette = createPalette(size, blank);
  const auto [red, green, blue] = levels;
  const std::int32_t offset = includeWindowsColors ? kWindowsColors / 2 : 0;
  const std::int32_t count = std::min(levelProduct(levels), palette.getSize() - offset);
  for (std::int32_t i = 0; i < count; ++i) {
    palette.setEntry(offset + i, {levelValue(i % red, red), levelValue(i / red % green, green),
                                  levelValue(i / red / green % blue, blue)});
  }
  if (includeWindowsColors) {
    applyWindowsColors(palette);
  }
  return palette;
}

}  // namespace quillhue
