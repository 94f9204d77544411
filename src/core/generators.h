#pragma once

#include <array>
#include <cstdint>

#include "core/palette.h"

namespace quillhue {

/// Functions that create palettes. A size below 1 counts as 1. No entry is selected.

/// The number of static colors of the Windows system palette.
inline constexpr std::int32_t kWindowsColors = 20;

/// Writes the first ten Windows colors to the front and the other ten to the end. Colors that do not fit are left out.
void applyWindowsColors(Palette& palette);

[[nodiscard]] Palette createBlankPalette(std::int32_t size, bool includeWindowsColors, PaletteEntry blank);

/// Creates a ramp from black to white. A palette of one entry is black.
[[nodiscard]] Palette createGreyscalePalette(std::int32_t size);

/// Numbers of red, green and blue levels, kMinRgbLevel .. kMaxRgbLevel each.
using RgbLevels = std::array<std::int32_t, 3>;
inline constexpr std::int32_t kMinRgbLevel = 1;
inline constexpr std::int32_t kMaxRgbLevel = 256;

/// Returns the number of colors that the levels give.
[[nodiscard]] constexpr std::int32_t levelProduct(const RgbLevels& levels) { return levels[0] * levels[1] * levels[2]; }

/// Creates every combination of evenly spaced levels, with red changing fastest. Windows colors, if included, take both
/// ends of the palette. Unused entries get the blank color; combinations that do not fit are left out. A channel with
/// one level is 0.
[[nodiscard]] Palette createRgbPalette(std::int32_t size, const RgbLevels& levels, bool includeWindowsColors,
                                       PaletteEntry blank);

}  // namespace quillhue
