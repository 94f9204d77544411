#include "remap/color_groups.h"

#include <limits>

namespace quillhue {

namespace {

using Numbers = std::array<std::int32_t, 4>;

__m128i lanesOf(const Numbers& numbers) { return _mm_setr_epi32(numbers[0], numbers[1], numbers[2], numbers[3]); }

// Two 16-bit lanes.
std::int32_t pairOf(std::int32_t low, std::int32_t high) {
  return static_cast<std::int32_t>(static_cast<std::uint16_t>(low) |
                                   static_cast<std::uint32_t>(static_cast<std::uint16_t>(high)) << 16);
}

ColorQuad quadOf(std::span<const PaletteEntry> colors, std::span<const std::uint8_t, 4> indexes, std::int32_t factor) {
  Numbers blueGreen{};
  Numbers red{};
  for (std::size_t lane = 0; lane < indexes.size(); ++lane) {
    const PaletteEntry& color = colors[indexes[lane]];
    blueGreen[lane] = pairOf(color.blue * factor, color.green * factor);
    red[lane] = pairOf(color.red * factor, 0);
  }
  return {lanesOf(blueGreen), lanesOf(red)};
}

// Where `condition` has all bits the one, where it has none the other.
__m128i choose(__m128i condition, __m128i then, __m128i otherwise) {
  return _mm_or_si128(_mm_and_si128(condition, then), _mm_andnot_si128(condition, otherwise));
}

__m128i lesser(__m128i a, __m128i b) { return choose(_mm_cmplt_epi32(a, b), a, b); }

// The least distance so far in each of four lanes, and the first index that had it.
class LeastDistances {
 public:
  void add(__m128i distances, __m128i indexes) {
    const __m128i isLess = _mm_cmplt_epi32(distances, distances_);
    distances_ = choose(isLess, distances, distances_);
    indexes_ = choose(isLess, indexes, indexes_);
  }

  // Of the lanes with the least distance of all the least index.
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
  // No distance is as much, not even one that wraps: a sum of three squares is never 7 more than a multiple of 8.
  __m128i distances_ = _mm_set1_epi32(std::numeric_limits<std::int32_t>::max());
  __m128i indexes_ = _mm_set1_epi32(255);
};

}  // namespace

template <int indexBits>
KeyGroup<indexBits>::KeyGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t, kColors> indexes) {
  for (std::size_t half = 0; half < quads_.size(); ++half) {
    const std::span<const std::uint8_t, 4> four(indexes.data() + 4 * half, 4);
    Numbers start{};
    for (std::size_t lane = 0; lane < four.size(); ++lane) {
      start[lane] = keyStart<indexBits>(colors[four[lane]], four[lane]);
    }
    quads_[half] = {lanesOf(start), quadOf(colors, four, -(1 << kColorShift))};
  }
}

template class KeyGroup<8>;
template class KeyGroup<5>;

DistanceGroup::DistanceGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t, kColors> indexes)
    : colors_(quadOf(colors, indexes, 1)), indexes_(_mm_setr_epi32(indexes[0], indexes[1], indexes[2], indexes[3])) {}

BoxDistances DistanceGroup::distancesTo(const ColorQuad& low, const ColorQuad& high) const {
  const auto reach = [](__m128i colors, __m128i from, __m128i to) {
    return _mm_max_epi16(_mm_sub_epi16(colors, from), _mm_sub_epi16(to, colors));
  };
  const auto gap = [](__m128i colors, __m128i from, __m128i to) {
    return _mm_max_epi16(_mm_setzero_si128(), _mm_max_epi16(_mm_sub_epi16(from, colors), _mm_sub_epi16(colors, to)));
  };
  const ColorQuad least{gap(colors_.blueGreen, low.blueGreen, high.blueGreen), gap(colors_.red, low.red, high.red)};
  const ColorQuad greatest{reach(colors_.blueGreen, low.blueGreen, high.blueGreen),
                           reach(colors_.red, low.red, high.red)};
  return {dotProducts(least, least), dotProducts(greatest, greatest)};
}

std::uint8_t DistanceGroup::nearest(const DistanceGroup* groups, std::size_t count, PackedColor target) {
  const ColorQuad targets = fourTimes(target);
  LeastDistances least;
  for (const DistanceGroup& group : std::span(groups, count)) {
    const ColorQuad difference{_mm_sub_epi16(targets.blueGreen, group.colors_.blueGreen),
                               _mm_sub_epi16(targets.red, group.colors_.red)};
    least.add(dotProducts(difference, difference), group.indexes_);
  }
  return least.index();
}

// |t - p|^2 = |t|^2 + |p|^2 - 2 t.p, where t is the sum of a low half of 16 signed bits and 2^16 times a high one.
std::uint8_t DistanceGroup::nearestWrapping(const DistanceGroup* groups, std::size_t count, ColorLanes target) {
  const ColorLanes low{_mm_srai_epi32(_mm_slli_epi32(target.lanes, 16), 16)};
  const ColorLanes high{_mm_srai_epi32((target - low).lanes, 16)};
  const ColorQuad lows = fourTimes(packed(low));
  const ColorQuad highs = fourTimes(packed(high));
  std::uint32_t squaredLength = 0;
  for (const std::int32_t number : numbersOf(target)) {
    squaredLength += static_cast<std::uint32_t>(number) * static_cast<std::uint32_t>(number);
  }
  LeastDistances least;
  for (const DistanceGroup& group : std::span(groups, count)) {
    const __m128i products =
        _mm_add_epi32(dotProducts(lows, group.colors_), _mm_slli_epi32(dotProducts(highs, group.colors_), 16));
    const __m128i squaredLengths = _mm_add_epi32(_mm_set1_epi32(static_cast<std::int32_t>(squaredLength)),
                                                 dotProducts(group.colors_, group.colors_));
    least.add(_mm_sub_epi32(squaredLengths, _mm_slli_epi32(products, 1)), group.indexes_);
  }
  return least.index();
}

}  // namespace quillhue
