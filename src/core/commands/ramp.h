#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/document.h"

namespace quillhue {

/// A color space in which two colors can be mixed.
struct RampSpace {
  std::string_view name;
  /// Returns the color at `part` (0..1) of the way from one color to the other.
  PaletteEntry (*mix)(const PaletteEntry& from, const PaletteEntry& to, double part);
};

/// Returns rgb, hsv and oklab. HSV takes the shorter way round the circle of hues; a gray has the hue of the other
/// color.
[[nodiscard]] std::span<const RampSpace> rampSpaces();

/// Fills the entries between two entries with a ramp of their colors, as one undo step. Changes the channels in `mask`
/// whether the entries are selected or not. Both indexes must be in the palette; either may be the smaller one.
void ramp(PaletteDocument& document, ChannelMask mask, std::int32_t from, std::int32_t to, const RampSpace& space);

}  // namespace quillhue
