#pragma once

#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// The least coverage (alpha, 0..255) of a pixel that is not transparent.
inline constexpr std::uint8_t kHalfCovered = 128;

/// The quotient by 255, rounded to the nearest.
[[nodiscard]] constexpr std::uint8_t dividedBy255(std::uint32_t product) {
  return static_cast<std::uint8_t>((product + 127) / 255);
}

/// The color where `color` covers `behind` by `coverage` of 255 parts.
[[nodiscard]] constexpr PaletteEntry blended(PaletteEntry color, const PaletteEntry& behind, std::uint8_t coverage) {
  for (const Channel channel : kChannels) {
    auto& value = channelOf(color, channel);
    value =
        dividedBy255(std::uint32_t{value} * coverage + std::uint32_t{channelOf(behind, channel)} * (255U - coverage));
  }
  return color;
}

}  // namespace quillhue
