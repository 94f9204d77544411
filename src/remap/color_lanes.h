#pragma once

#include <emmintrin.h>

#include <array>
#include <cstdint>
#include <cstring>

#include "core/palette_entry.h"

namespace quillhue {

/// Blue, green and red, or errors of them, in the four 32-bit lanes of a register of SSE2, which every 64-bit x86
/// processor has. The fourth lane is 0. All arithmetic wraps modulo 2^32 as two's complement does.
struct ColorLanes {
  __m128i lanes = _mm_setzero_si128();

  friend ColorLanes operator+(ColorLanes a, ColorLanes b) { return {_mm_add_epi32(a.lanes, b.lanes)}; }
  friend ColorLanes operator-(ColorLanes a, ColorLanes b) { return {_mm_sub_epi32(a.lanes, b.lanes)}; }
};

template <int bits>
[[nodiscard]] ColorLanes shiftedLeft(ColorLanes color) {
  return {_mm_slli_epi32(color.lanes, bits)};
}

/// A sixteenth of each lane, rounded down.
[[nodiscard]] inline ColorLanes sixteenth(ColorLanes color) { return {_mm_srai_epi32(color.lanes, 4)}; }

/// `color`, or 0 when it does not `pass`.
[[nodiscard]] inline ColorLanes passed(ColorLanes color, bool pass) {
  return {_mm_and_si128(color.lanes, _mm_set1_epi32(pass ? -1 : 0))};
}

/// A color as the bytes of a pixel: blue is the lowest, then green, then red.
[[nodiscard]] constexpr std::uint32_t pixelOf(const PaletteEntry& color) {
  return color.blue | std::uint32_t{color.green} << 8 | std::uint32_t{color.red} << 16;
}

[[nodiscard]] inline ColorLanes lanesOfPixel(std::uint32_t pixel) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i bytes = _mm_cvtsi32_si128(static_cast<int>(pixel));
  return {_mm_unpacklo_epi16(_mm_unpacklo_epi8(bytes, zero), zero)};
}

[[nodiscard]] inline std::array<std::int32_t, 4> numbersOf(ColorLanes color) {
  std::array<std::int32_t, 4> numbers{};
  std::memcpy(numbers.data(), &color.lanes, sizeof numbers);
  return numbers;
}

/// A color in 16-bit lanes: blue, green, red and 0, twice.
struct PackedColor {
  __m128i lanes;
};

/// What does not fit into 16 bits becomes the nearest number that does.
[[nodiscard]] inline PackedColor packed(ColorLanes color) { return {_mm_packs_epi32(color.lanes, color.lanes)}; }

/// Whether every channel is within `low` .. `low` + 2^bits - 1, of numbers that 16 bits hold.
template <int low, int bits>
[[nodiscard]] bool isWithin(PackedColor color) {
  // Unsigned, what is below `low` is beyond the end too.
  const __m128i fromLow = _mm_sub_epi16(color.lanes, _mm_set1_epi16(low));
  const std::uint64_t beyond = static_cast<std::uint16_t>(~((1U << bits) - 1)) * 0x0001'0001'0001U;
  return (static_cast<std::uint64_t>(_mm_cvtsi128_si64(fromLow)) & beyond) == 0;
}

}  // namespace quillhue
