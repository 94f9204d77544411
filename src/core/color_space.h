#pragma once

#include "core/palette_entry.h"

namespace quillhue {

/// Conversions in floating point, for sorting and mixing colors. The editor's color models, in `colormodes`, compute
/// with integers.

/// The hexcone model of A. R. Smith, "Color Gamut Transform Pairs" (1978).
struct Hsv {
  /// Degrees, 0 up to but not including 360; 0 for grays.
  double hue = 0;
  /// Both 0..1.
  double saturation = 0;
  double value = 0;
};

/// Oklab by Björn Ottosson, "A perceptual color space for image processing" (2020).
struct Oklab {
  /// 0 is black, 1 is white.
  double lightness = 0;
  double a = 0;
  double b = 0;
};

[[nodiscard]] constexpr bool isGray(const PaletteEntry& color) {
  return color.red == color.green && color.green == color.blue;
}

[[nodiscard]] Hsv hsvOf(const PaletteEntry& color);
/// Takes any hue: 370 is 10 degrees, and so is -350.
[[nodiscard]] PaletteEntry colorOf(const Hsv& hsv);

/// Takes the color as sRGB (IEC 61966-2-1).
[[nodiscard]] Oklab oklabOf(const PaletteEntry& color);
/// Returns the sRGB color, with each channel limited to 0..255.
[[nodiscard]] PaletteEntry colorOf(const Oklab& lab);

}  // namespace quillhue
