#pragma once

#include "core/palette_entry.h"

/// Converts the color models of swatch files to sRGB (IEC 61966-2-1), rounded to the nearest value. Components are 0..1
/// unless stated otherwise. Values out of range are set to the nearest value in range, NaN to the lowest.
namespace quillhue::swatch {

[[nodiscard]] PaletteEntry fromRgb(double red, double green, double blue);
/// 0 is black.
[[nodiscard]] PaletteEntry fromGray(double gray);
/// Hue 0 and 1 are red, 1/3 is green.
[[nodiscard]] PaletteEntry fromHsb(double hue, double saturation, double brightness);
/// 1 is full ink. Used without a color profile: each channel is the product of the light that its ink and the black ink
/// let through.
[[nodiscard]] PaletteEntry fromCmyk(double cyan, double magenta, double yellow, double black);
/// CIE L*a*b* under D50, the white of swatch files. `lightness` is 0..100; `a` and `b` are around 0. Adapted to the
/// white of sRGB by the Bradford method.
[[nodiscard]] PaletteEntry fromLab(double lightness, double a, double b);

}  // namespace quillhue::swatch
