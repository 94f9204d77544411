#pragma once

#include <array>
#include <cstdint>

#include "core/palette.h"

namespace quillhue {

/// New palettes. A size below 1 counts as 1; no entry is selected.

/// The number of static colors of the Windows system palette.
inline constexpr std::int32_t kWindowsColors = 20;

/// Writes the Windows colors: ten to the front, then ten to the end. Those without a place are left out.
void applyWindowsColors(Palette& palette);

[[nodiscard]] Palette createBlankPalette(std::int32_t size, bool includeWindowsColors, PaletteEntry blank);

/// From black to white; one entry is black.
[[nodiscard]] Palette createGreyscalePalette(std::int32_t size);

/// How many values red, green and blue take, kMinRgbLevel .. kMaxRgbLevel each.
using RgbLevels = std::array<std::int32_t, 3>;
inline constexpr std::int32_t kMinRgbLevel = 1;
inline constexpr std::int32_t kMaxRgbLevel = 256;

/// The number of colors that the levels make.
[[nodiscard]] constexpr std::int32_t levelProduct(const RgbLevels& levels) { return levels[0] * levels[1] * levels[2]; }

/// Every combination of evenly spaced levels, red changing fastest, between the two groups of Windows colors if they
/// are included. Unused entries are blank; combinations without a place are left out. A channel of one level is 0.
[[nodiscard]] Palette createRgbPalette(std::int32_t size, const RgbLevels& levels, bool includeWindowsColors,
                                       PaletteEntry blank);

}  // namespace quillhue
