#include "remap/color_scan.h"

#include <array>
#include <limits>

namespace quillhue {

namespace {

// Selects `then` in lanes where `condition` has all bits, `otherwise` where it has none.
__m128i choose(__m128i condition, __m128i then, __m128i otherwise) {
  return _mm_or_si128(_mm_and_si128(condition, then), _mm_andnot_si128(condition, otherwise));
}

__m128i lesser(__m128i a, __m128i b) { return choose(_mm_cmplt_epi32(a, b), a, b); }

// The least distance so far in each of four lanes, and the first index with this distance.
class LeastDistances {
 public:
  void add(__m128i distances, __m128i indexes) {
    const __m128i isLess = _mm_cmplt_epi32(distances, distances_);
    distances_ = choose(isLess, distances, distances_);
    indexes_ = choose(isLess, indexes, indexes_);
  }

  // Returns the least index of the lanes with the least distance.
  [[nodiscard]] std::uint8_t index() const {
    __m128i least = lesser(distances_, _mm_shuffle_epi32(distances_, _MM_SHUFFLE(1, 0, 3, 2)));
    least = lesser(least, _mm_shuffle_epi32(least, _MM_SHUFFLE(2, 3, 0, 1)));
    const __m128i isMore = _mm_andnot_si128(_mm_cmpeq_epi32(distances_, least), _mm_set1_epi16(0x7FFF));
    __m128i index = _mm_or_si128(indexes_, isMore);
    index = _mm_min_epi16(index, _mm_shuffle_epi32(index, _MM_SHUFFLE(1, 0, 3, 2)));
    index = _mm_min_epi16(index, _mm_shuffle_epi32(index, _MM_SHUFFLE(2, 3, 0, 1)));
    return static_cast<std::uint8_t>(_mm_cvtsi128_si32(index));
  }

 private:
  // No distance equals this, not even one that wraps: a sum of three squares is never 7 modulo 8.
  __m128i distances_ = _mm_set1_epi32(std::numeric_limits<std::int32_t>::max());
  __m128i indexes_ = _mm_set1_epi32(255);
};

}  // namespace

ColorScan::ColorScan(std::span<const PaletteEntry> colors) : colors_(colors.begin(), colors.end()) {
  for (std::size_t first = 0; first < colors_.size(); first += 4) {
    const auto indexAt = [&](std::size_t lane) { return first + lane < colors_.size() ? first + lane : 0; };
    const Lanes pixels = lanesBy([&](auto lane) { return pixelOf(colors_[indexAt(lane % 4)]); });
    const ColorQuad quad = PairedColors(colorsOfPixels(pixels)).low();
    quads_.push_back({quad, dotProducts(quad, quad), lanesBy(indexAt).low});
  }
}

// |t - p|^2 = |t|^2 + |p|^2 - 2 t.p, where t is the sum of a low half of 16 signed bits and 2^16 times a high one.
std::uint8_t ColorScan::nearest(const ColorVector& target) const {
  const EightColors targets = EightColors::all(target);
  const ColorQuad lows = PairedColors(targets).low();
  const ColorQuad highs = PairedColors((targets + EightColors::all({0x8000, 0x8000, 0x8000})) >> 16).low();
  std::uint32_t squaredLength = 0;
  for (const std::int32_t number : target) {
    squaredLength += static_cast<std::uint32_t>(number) * static_cast<std::uint32_t>(number);
  }
  const __m128i targetLength = _mm_set1_epi32(static_cast<std::int32_t>(squaredLength));
  LeastDistances least;
  for (const Quad& quad : quads_) {
    const __m128i products =
        _mm_add_epi32(dotProducts(lows, quad.colors), _mm_slli_epi32(dotProducts(highs, quad.colors), 16));
    const __m128i squaredLengths = _mm_add_epi32(targetLength, quad.squaredLengths);
    least.add(_mm_sub_epi32(squaredLengths, _mm_slli_epi32(products, 1)), quad.indexes);
  }
  return least.index();
}

}  // namespace quillhue
