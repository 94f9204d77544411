#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/palette.h"

namespace quillhue {

using Bytes = std::vector<std::uint8_t>;

inline Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

inline std::string hexOf(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += "0123456789ABCDEF"[byte / 16];
    text += "0123456789ABCDEF"[byte % 16];
  }
  return text;
}

/// Whether the bytes are lines of ASCII text.
inline bool isText(const Bytes& bytes) {
  return std::ranges::all_of(bytes, [](std::uint8_t byte) {
    return (byte >= ' ' && byte <= '~') || byte == '\t' || byte == '\r' || byte == '\n';
  });
}

/// Returns "1,2,3 4,5,6" for two entries.
inline std::string show(const Palette& palette) {
  std::ostringstream text;
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const PaletteEntry color = palette.entry(i);
    text << (i == 0 ? "" : " ") << int{color.red} << ',' << int{color.green} << ',' << int{color.blue};
  }
  return text.str();
}

/// Returns the palette for which `show` gives this text.
inline Palette shownPalette(const std::string& text) {
  std::vector<PaletteEntry> entries;
  std::istringstream numbers(text);
  int red = 0;
  int green = 0;
  int blue = 0;
  char comma = 0;
  while (numbers >> red >> comma >> green >> comma >> blue) {
    entries.push_back(
        {static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)});
  }
  return paletteOf(entries);
}

/// Returns `size` different colors (up to 2^16), none of them black.
inline Palette variedPalette(std::int32_t size) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    palette.setEntry(i, {static_cast<std::uint8_t>(i + 1), static_cast<std::uint8_t>(200 - i / 256),
                         static_cast<std::uint8_t>(i * 7)});
  }
  return palette;
}

}  // namespace quillhue
