#pragma once

#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// The hue circle that HSI, HSL and HSV share: 0..359 degrees, red at 0, green at 120, blue at 240.

[[nodiscard]] std::uint8_t greatestChannel(const PaletteEntry& color);
[[nodiscard]] std::uint8_t leastChannel(const PaletteEntry& color);

/// The hue of a color; 0 for greys. The quotient is truncated before the sector's base is added.
[[nodiscard]] std::int32_t hueOf(const PaletteEntry& color);

/// Where a hue stands in its third of the circle, which leads from one primary color to the next.
struct HueAngle {
  explicit HueAngle(std::int32_t hue) : fromStart(hue % 120), toEnd(120 - fromStart) {}

  /// In the third's first half the primary at its start is the strongest channel, in the second half that at its end.
  [[nodiscard]] bool isFirstHalf() const { return fromStart < 60; }

  /// Degrees, 0..119 and 120..1.
  std::int32_t fromStart;
  std::int32_t toEnd;
};

/// The color whose channels are, in the third of the circle in which `hue` (0..359) is: `start` for the primary color
/// at its start, `end` for that at its end, `rest` for the third one.
[[nodiscard]] PaletteEntry colorInThird(std::int32_t hue, std::uint8_t start, std::uint8_t end, std::uint8_t rest);

}  // namespace quillhue
