#pragma once

#include <cstdint>
#include <span>

#include "core/counted_color.h"
#include "core/palette.h"

namespace quillhue {

/// Returns a palette of `size` entries (1 or more) with which the mode nearest gives an image with these colors a small
/// mean squared error in red, green and blue: boxes of least variance, improved by k-means. The same colors in the same
/// order always give the same palette.
///
/// Entries are sorted from dark to bright. If there are at most `size` colors, they are the palette, in the given
/// order. Missing entries get the blank color. Throws std::bad_alloc.
[[nodiscard]] Palette bestPalette(std::span<const CountedColor> colors, std::int32_t size, PaletteEntry blank);

}  // namespace quillhue
