#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/palette_entry.h"
#include "remap/eight_colors.h"

namespace quillhue {

/// Four colors in 16-bit lanes, in pairs for the multiply-add instruction: blue and green, red and another number,
/// which is 0 in at least one of the colors that are multiplied.
struct ColorQuad {
  __m128i blueGreen;
  __m128i red;
};

/// Returns the dot product of each color of `a` with the one of `b`.
[[nodiscard]] inline __m128i dotProducts(const ColorQuad& a, const ColorQuad& b) {
  return _mm_add_epi32(_mm_madd_epi16(a.blueGreen, b.blueGreen), _mm_madd_epi16(a.red, b.red));
}

/// Eight colors as two quads. Keeps the low 16 bits of each channel; beside red the bits are any.
class PairedColors {
 public:
  PairedColors(Lanes blueGreen, Lanes red) : blueGreen_(blueGreen), red_(red) {}
  explicit PairedColors(const EightColors& colors)
      : blueGreen_((colors.blue & Lanes::all(0xFFFF)) | colors.green << 16), red_(colors.red) {}

  [[nodiscard]] Lanes blueGreen() const { return blueGreen_; }
  [[nodiscard]] Lanes red() const { return red_; }

  [[nodiscard]] ColorQuad low() const { return {blueGreen_.low, red_.low}; }
  [[nodiscard]] ColorQuad high() const { return {blueGreen_.high, red_.high}; }
  /// Returns one color four times.
  template <std::size_t lane>
  [[nodiscard]] ColorQuad fourTimes() const {
    constexpr int kSame = 0x55 * (lane % 4);
    return lane < 4 ? ColorQuad{_mm_shuffle_epi32(blueGreen_.low, kSame), _mm_shuffle_epi32(red_.low, kSame)}
                    : ColorQuad{_mm_shuffle_epi32(blueGreen_.high, kSame), _mm_shuffle_epi32(red_.high, kSame)};
  }

 private:
  Lanes blueGreen_;
  Lanes red_;
};

[[nodiscard]] constexpr std::int32_t squaredLength(const PaletteEntry& color) {
  return color.red * color.red + color.green * color.green + color.blue * color.blue;
}

/// Returns the part of a color's key that does not depend on the target. For color p, its index i and target t the key
/// is f (|p|^2 - 2 t.p) + i + 2^30, where f is greater than all indexes. The least key is that of the nearest color
/// and, of equally near ones, of the first; its low bits are the index. 2^30 keeps keys positive, so that they have the
/// same order as floats with the same bits: SSE2 has a minimum of floats, but none of 32-bit integers.
template <int indexBits>
[[nodiscard]] constexpr std::int32_t keyStart(const PaletteEntry& color, std::uint8_t index) {
  return (squaredLength(color) << indexBits) + index + (1 << 30);
}

/// Returns the least of the four keys that `keysOf(Lane)` gives for each lane.
template <typename KeysOf>
[[nodiscard, gnu::always_inline]] inline Lanes leastKeys(KeysOf keysOf) {
  const auto four = [](__m128 first, __m128 second, __m128 third, __m128 fourth) __attribute__((always_inline)) {
    const __m128 upper = _mm_min_ps(_mm_unpacklo_ps(first, second), _mm_unpackhi_ps(first, second));
    const __m128 lower = _mm_min_ps(_mm_unpacklo_ps(third, fourth), _mm_unpackhi_ps(third, fourth));
    return _mm_castps_si128(_mm_min_ps(_mm_movelh_ps(upper, lower), _mm_movehl_ps(lower, upper)));
  };
  return {four(keysOf(Lane<0>()), keysOf(Lane<1>()), keysOf(Lane<2>()), keysOf(Lane<3>())),
          four(keysOf(Lane<4>()), keysOf(Lane<5>()), keysOf(Lane<6>()), keysOf(Lane<7>()))};
}

/// Four colors of a list in little memory: the parts of their keys that do not depend on the target, and their
/// channels.
class ListedColors {
 public:
  static constexpr std::size_t kCount = 4;

  friend bool operator==(const ListedColors&, const ListedColors&) = default;

  void set(std::size_t lane, std::int32_t keyStart, const PaletteEntry& color) {
    starts_[lane] = keyStart;
    bytes_[2 * lane] = color.blue ^ kHalf;
    bytes_[2 * lane + 1] = color.green ^ kHalf;
    bytes_[kRed + 2 * lane] = color.red ^ kHalf;
  }

  [[nodiscard]] __m128i starts() const { return std::bit_cast<__m128i>(starts_); }
  /// Returns 256 times the dot product of each color with a target. Channels of the colors are less by 128 here, so
  /// that they are signed bytes; this changes the products of all colors by the same amount.
  [[nodiscard]] __m128i products(const ColorQuad& target) const {
    const __m128i zero = _mm_setzero_si128();
    const auto bytes = std::bit_cast<__m128i>(bytes_);
    return dotProducts({_mm_unpacklo_epi8(zero, bytes), _mm_unpackhi_epi8(zero, bytes)}, target);
  }

 private:
  static constexpr std::uint8_t kHalf = 0x80;
  static constexpr std::size_t kRed = 8;

  alignas(16) std::array<std::int32_t, kCount> starts_{};
  // Blue and green of each color, then red and 0.
  alignas(16) std::array<std::uint8_t, 4 * kCount> bytes_{};
};

}  // namespace quillhue
