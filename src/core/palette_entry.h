#pragma once

#include <cstdint>

namespace quillhue {

/// One color: red, green and blue, 0..255 each.
struct PaletteEntry {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const PaletteEntry&, const PaletteEntry&) = default;
};

}  // namespace quillhue
