#pragma once

#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// The hue circle that HSI, HSL and HSV share: 0..359 degrees, red at 0, green at 120, blue at 240.

[[nodiscard]] std::uint8_t greatestChannel(const PaletteEntry& color);
[[nodiscard]] std::uint8_t leastChannel(const PaletteEntry& color);

/// Returns the hue of a color, 0 for greys. The quotient is truncated before the sector's base is added.
[[nodiscard]] std::int32_t hueOf(const PaletteEntry& color);

/// The position of a hue in its third of the circle. Each third leads from one primary color to the next.
struct HueAngle {
  explicit HueAngle(std::int32_t hue) : fromStart(hue % 120), toEnd(120 - fromStart) {}

  /// True in the first half of the third, where the primary color at its start is the strongest channel. In the second
  /// half, the one at its end is.
  [[nodiscard]] bool isFirstHalf() const { return fromStart < 60; }

  /// Degrees from the third's start, 0..119, and to its end, 120..1.
  std::int32_t fromStart;
  std::int32_t toEnd;
};

/// Returns a color in the third of the circle that contains `hue` (0..359). The primary color at the third's start has
/// the value `start`, the one at its end `end`, and the third one `rest`.
[[nodiscard]] PaletteEntry colorInThird(std::int32_t hue, std::uint8_t start, std::uint8_t end, std::uint8_t rest);

}  // namespace quillhue
