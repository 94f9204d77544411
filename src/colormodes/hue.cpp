#include "colormodes/hue.h"

#include <algorithm>

namespace quillhue {

std::uint8_t greatestChannel(const PaletteEntry& color) { return std::max({color.red, color.green, color.blue}); }

std::uint8_t leastChannel(const PaletteEntry& color) { return std::min({color.red, color.green, color.blue}); }

std::int32_t hueOf(const PaletteEntry& color) {
  const auto [red, green, blue] = color;
  const std::uint8_t greatest = greatestChannel(color);
  const std::int32_t spread = greatest - leastChannel(color);
  if (spread == 0) {
    return 0;
  }
  if (red == greatest) {
    return ((green - blue) * 60 / spread + 360) % 360;
  }
  if (green == greatest) {
    return (blue - red) * 60 / spread + 120;
  }
  return ((red - green) * 60 / spread + 240) % 360;
}

PaletteEntry colorInThird(std::int32_t hue, std::uint8_t start, std::uint8_t end, std::uint8_t rest) {
  switch (hue / 120) {
    case 0:
      return {start, end, rest};
    case 1:
      return {rest, start, end};
    default:
      return {end, rest, start};
  }
}

}  // namespace quillhue
