#pragma once

#include <emmintrin.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace quillhue {

/// Eight 32-bit numbers in two registers of SSE2, which every 64-bit x86 processor has. Arithmetic wraps modulo 2^32 as
/// two's complement does. A comparison gives each lane all bits or none.
struct Lanes {
  static constexpr std::size_t kCount = 8;

  __m128i low = _mm_setzero_si128();
  __m128i high = _mm_setzero_si128();

  [[nodiscard]] static Lanes all(std::int32_t number) { return {_mm_set1_epi32(number), _mm_set1_epi32(number)}; }

  friend Lanes operator+(Lanes a, Lanes b) { return {_mm_add_epi32(a.low, b.low), _mm_add_epi32(a.high, b.high)}; }
  friend Lanes operator-(Lanes a, Lanes b) { return {_mm_sub_epi32(a.low, b.low), _mm_sub_epi32(a.high, b.high)}; }
  friend Lanes operator&(Lanes a, Lanes b) { return {_mm_and_si128(a.low, b.low), _mm_and_si128(a.high, b.high)}; }
  friend Lanes operator|(Lanes a, Lanes b) { return {_mm_or_si128(a.low, b.low), _mm_or_si128(a.high, b.high)}; }
  friend Lanes operator^(Lanes a, Lanes b) { return {_mm_xor_si128(a.low, b.low), _mm_xor_si128(a.high, b.high)}; }
  friend Lanes operator~(Lanes a) { return a ^ all(-1); }
  friend Lanes operator<<(Lanes a, int bits) { return {_mm_slli_epi32(a.low, bits), _mm_slli_epi32(a.high, bits)}; }
  /// Rounds down.
  friend Lanes operator>>(Lanes a, int bits) { return {_mm_srai_epi32(a.low, bits), _mm_srai_epi32(a.high, bits)}; }
  friend Lanes operator==(Lanes a, Lanes b) { return {_mm_cmpeq_epi32(a.low, b.low), _mm_cmpeq_epi32(a.high, b.high)}; }
  friend Lanes operator<(Lanes a, Lanes b) { return {_mm_cmplt_epi32(a.low, b.low), _mm_cmplt_epi32(a.high, b.high)}; }
};

/// Shifts unsigned numbers.
[[nodiscard]] inline Lanes unsignedShiftRight(Lanes lanes, int bits) {
  return {_mm_srli_epi32(lanes.low, bits), _mm_srli_epi32(lanes.high, bits)};
}

/// `then` in the lanes where `condition` has all bits, `otherwise` where it has none.
[[nodiscard]] inline Lanes choose(Lanes condition, Lanes then, Lanes otherwise) {
  return (condition & then) | (~condition & otherwise);
}

[[nodiscard]] inline bool areZero(Lanes lanes) {
  const __m128i any = _mm_or_si128(lanes.low, lanes.high);
  return _mm_movemask_epi8(_mm_cmpeq_epi32(any, _mm_setzero_si128())) == 0xFFFF;
}

/// Returns a bit for each lane, the lowest for the first, that is set if the number is negative.
[[nodiscard]] inline unsigned signsOf(Lanes lanes) {
  const auto four = [](__m128i half) { return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(half))); };
  return four(lanes.low) | four(lanes.high) << 4;
}

/// A lane's number as a compile-time constant.
template <std::size_t number>
using Lane = std::integral_constant<std::size_t, number>;

/// Calls `visit(Lane)` for each lane.
template <typename Visit>
void forEachLane(Visit visit) {
  [&]<std::size_t... lane>(std::index_sequence<lane...>) {
    (visit(Lane<lane>()), ...);
  }(std::make_index_sequence<Lanes::kCount>());
}

/// Returns the numbers that `at(Lane)` gives for each lane.
template <typename At>
[[nodiscard]] Lanes lanesBy(At at) {
  const auto four = [](auto first, auto second, auto third, auto fourth) {
    const auto lane = [](auto number) { return _mm_cvtsi32_si128(static_cast<int>(number)); };
    return _mm_unpacklo_epi64(_mm_unpacklo_epi32(lane(first), lane(second)),
                              _mm_unpacklo_epi32(lane(third), lane(fourth)));
  };
  return {four(at(Lane<0>()), at(Lane<1>()), at(Lane<2>()), at(Lane<3>())),
          four(at(Lane<4>()), at(Lane<5>()), at(Lane<6>()), at(Lane<7>()))};
}

/// Returns the low 16 bits of a lane.
template <std::size_t lane>
[[nodiscard]] std::size_t lowHalfOf(Lanes lanes) {
  return static_cast<std::size_t>(_mm_extract_epi16(lane < 4 ? lanes.low : lanes.high, 2 * (lane % 4)));
}

using EightNumbers = std::array<std::int32_t, Lanes::kCount>;

[[nodiscard]] inline EightNumbers numbersOf(Lanes lanes) { return std::bit_cast<EightNumbers>(lanes); }

[[nodiscard]] inline Lanes lanesOf(const EightNumbers& numbers) { return std::bit_cast<Lanes>(numbers); }

/// Eight 16-bit numbers in one register.
struct Shorts {
  __m128i eight = _mm_setzero_si128();

  [[nodiscard]] static Shorts all(std::int16_t number) { return {_mm_set1_epi16(number)}; }

  friend Shorts operator+(Shorts a, Shorts b) { return {_mm_add_epi16(a.eight, b.eight)}; }
  friend Shorts operator&(Shorts a, Shorts b) { return {_mm_and_si128(a.eight, b.eight)}; }
  friend Shorts operator|(Shorts a, Shorts b) { return {_mm_or_si128(a.eight, b.eight)}; }
  friend Shorts operator^(Shorts a, Shorts b) { return {_mm_xor_si128(a.eight, b.eight)}; }
  friend Shorts operator<<(Shorts a, int bits) { return {_mm_slli_epi16(a.eight, bits)}; }
  /// Rounds down.
  friend Shorts operator>>(Shorts a, int bits) { return {_mm_srai_epi16(a.eight, bits)}; }
  friend Shorts operator==(Shorts a, Shorts b) { return {_mm_cmpeq_epi16(a.eight, b.eight)}; }
  friend Shorts operator<(Shorts a, Shorts b) { return {_mm_cmplt_epi16(a.eight, b.eight)}; }
};

/// Returns the high 16 bits of products.
[[nodiscard]] inline Shorts highProducts(Shorts a, Shorts b) { return {_mm_mulhi_epi16(a.eight, b.eight)}; }

[[nodiscard]] inline Shorts greaterOf(Shorts a, Shorts b) { return {_mm_max_epi16(a.eight, b.eight)}; }

/// Returns the numbers clamped to 16 bits.
[[nodiscard]] inline Shorts packed(Lanes lanes) { return {_mm_packs_epi32(lanes.low, lanes.high)}; }

/// Returns numbers made of low and high halves.
[[nodiscard]] inline Lanes interleaved(Shorts low, Shorts high) {
  return {_mm_unpacklo_epi16(low.eight, high.eight), _mm_unpackhi_epi16(low.eight, high.eight)};
}

/// Returns the numbers twice each, as the low and the high half.
[[nodiscard]] inline Lanes widened(Shorts shorts) { return interleaved(shorts, shorts); }

[[nodiscard]] inline bool areZero(Shorts shorts) {
  return _mm_movemask_epi8(_mm_cmpeq_epi16(shorts.eight, _mm_setzero_si128())) == 0xFFFF;
}

/// Returns a number as an unsigned one.
template <std::size_t lane>
[[nodiscard]] std::size_t numberOf(Shorts shorts) {
  return static_cast<std::size_t>(_mm_extract_epi16(shorts.eight, lane));
}

/// Moves each number to the next lane and puts `first` into the first one. Drops the last number.
[[nodiscard]] inline Lanes movedUp(Lanes lanes, std::int32_t first) {
  return {_mm_or_si128(_mm_slli_si128(lanes.low, 4), _mm_cvtsi32_si128(first)),
          _mm_or_si128(_mm_slli_si128(lanes.high, 4), _mm_srli_si128(lanes.low, 12))};
}

}  // namespace quillhue
