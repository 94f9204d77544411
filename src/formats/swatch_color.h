#pragma once

#include "core/palette_entry.h"

/// The color models of swatch files as the colors of sRGB (IEC 61966-2-1), rounded to the nearest. Components are 0..1
/// where nothing else is said; those that are out of range or no number count as the nearest value that is in range.
namespace quillhue::swatch {

[[nodiscard]] PaletteEntry fromRgb(double red, double green, double blue);
/// 0 is black.
[[nodiscard]] PaletteEntry fromGray(double gray);
/// Hue 0 and 1 are red, 1/3 is green.
[[nodiscard]] PaletteEntry fromHsb(double hue, double saturation, double brightness);
/// 1 is full ink. Without a profile: each channel is the product of what its ink and the black leave.
[[nodiscard]] PaletteEntry fromCmyk(double cyan, double magenta, double yellow, double black);
/// CIE L*a*b* under D50, the white of swatch files: lightness 0..100, a and b around 0. Adapted to the white of sRGB by
/// the Bradford method.
[[nodiscard]] PaletteEntry fromLab(double lightness, double a, double b);

}  // namespace quillhue::swatch
