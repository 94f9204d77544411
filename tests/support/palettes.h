#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <string_view>
#include <vector>

#include "core/palette.h"

namespace quillhue {

using Bytes = std::vector<std::uint8_t>;
using Colors = std::vector<PaletteEntry>;

inline Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

inline Colors colorsOf(const Palette& palette) {
  Colors colors;
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    colors.push_back(palette.entry(i));
  }
  return colors;
}

inline Palette paletteOf(std::span<const PaletteEntry> colors) {
  Palette palette = createPalette(static_cast<std::int32_t>(colors.size()));
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    palette.setEntry(i, colors[static_cast<std::size_t>(i)]);
  }
  return palette;
}

/// `size` different colors (up to 2^24), none of them black.
inline Palette variedPalette(std::int32_t size) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    palette.setEntry(i, {static_cast<std::uint8_t>(i + 1), static_cast<std::uint8_t>(200 - i / 256),
                         static_cast<std::uint8_t>(i * 7)});
  }
  return palette;
}

inline void PrintTo(const PaletteEntry& color, std::ostream* out) {
  *out << int{color.red} << ',' << int{color.green} << ',' << int{color.blue};
}

}  // namespace quillhue
