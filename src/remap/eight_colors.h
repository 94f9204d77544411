#pragma once

#include <array>
#include <cstdint>

#include "core/palette_entry.h"
#include "remap/lanes.h"

namespace quillhue {

/// Blue, green and red.
using ColorVector = std::array<std::int32_t, 3>;

/// Eight colors or color errors.
struct EightColors {
  Lanes blue;
  Lanes green;
  Lanes red;

  [[nodiscard]] static EightColors all(const ColorVector& color) {
    return {Lanes::all(color[0]), Lanes::all(color[1]), Lanes::all(color[2])};
  }

  friend EightColors operator+(const EightColors& a, const EightColors& b) {
    return {a.blue + b.blue, a.green + b.green, a.red + b.red};
  }
  friend EightColors operator-(const EightColors& a, const EightColors& b) {
    return {a.blue - b.blue, a.green - b.green, a.red - b.red};
  }
  friend EightColors operator<<(const EightColors& a, int bits) {
    return {a.blue << bits, a.green << bits, a.red << bits};
  }
  friend EightColors operator>>(const EightColors& a, int bits) {
    return {a.blue >> bits, a.green >> bits, a.red >> bits};
  }
  friend EightColors operator&(const EightColors& a, Lanes mask) {
    return {a.blue & mask, a.green & mask, a.red & mask};
  }
};

/// Packs a color into a pixel: blue is the lowest byte, then green, then red.
[[nodiscard]] constexpr std::uint32_t pixelOf(const PaletteEntry& color) {
  return color.blue | std::uint32_t{color.green} << 8 | std::uint32_t{color.red} << 16;
}

[[nodiscard]] inline EightColors colorsOfPixels(Lanes pixels) {
  const Lanes byte = Lanes::all(255);
  return {pixels & byte, (pixels >> 8) & byte, pixels >> 16};
}

}  // namespace quillhue
