#pragma once

#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// Minimum coverage (alpha, 0 .. 255) of a pixel that counts as opaque.
inline constexpr std::uint8_t kHalfCovered = 128;

/// Divides by 255, and rounds to the nearest integer.
[[nodiscard]] constexpr std::uint8_t dividedBy255(std::uint32_t product) {
  return static_cast<std::uint8_t>((product + 127) / 255);
}

/// Blends `color` over `behind`; `coverage` is 0 .. 255.
[[nodiscard]] constexpr PaletteEntry blended(PaletteEntry color, const PaletteEntry& behind, std::uint8_t coverage) {
  for (const Channel channel : kChannels) {
    auto& value = channelOf(color, channel);
    value =
        dividedBy255(std::uint32_t{value} * coverage + std::uint32_t{channelOf(behind, channel)} * (255U - coverage));
  }
  return color;
}

}  // namespace quillhue
