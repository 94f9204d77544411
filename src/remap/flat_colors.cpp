#include "remap/flat_colors.h"

#include <algorithm>

namespace quillhue {

namespace {

// Returns colors whose channels are about equal. The order of greys by distance depends only on the sum of the target's
// channels.
EightColors leveled(const EightColors& targets) {
  const Lanes sums = targets.blue + targets.green + targets.red;
  const auto third = [](__m128i four) {
    return _mm_cvtps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(four), _mm_set1_ps(1.0F / 3)));
  };
  const Lanes level{third(sums.low), third(sums.high)};
  return {sums - level - level, level, level};
}

}  // namespace

FlatColors::FlatColors(std::span<const PaletteEntry> colors) {
  areGreys_ = std::ranges::all_of(
      colors, [](const PaletteEntry& color) { return color.red == color.green && color.green == color.blue; });
  const auto compare = [&](std::uint8_t PaletteEntry::* channel, Lanes& differences, Lanes& equals) {
    const std::uint8_t first = colors.front().*channel;
    const bool isEqual =
        std::ranges::all_of(colors, [&](const PaletteEntry& color) { return color.*channel == first; });
    areEqual_ = areEqual_ || isEqual;
    differences = Lanes::all(isEqual ? 0 : -1);
    equals = Lanes::all(isEqual ? first : 0);
  };
  compare(&PaletteEntry::blue, differences_.blue, equals_.blue);
  compare(&PaletteEntry::green, differences_.green, equals_.green);
  compare(&PaletteEntry::red, differences_.red, equals_.red);
}

EightColors FlatColors::flattened(const EightColors& targets) const {
  if (areGreys_) {
    return leveled(targets);
  }
  return {(targets.blue & differences_.blue) | equals_.blue, (targets.green & differences_.green) | equals_.green,
          (targets.red & differences_.red) | equals_.red};
}

}  // namespace quillhue
