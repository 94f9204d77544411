#include "remap/color_candidates.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace quillhue {

namespace {

ColorQuad fourTimesCorner(const ColorVector& corner) {
  return fourTimes(packed({_mm_setr_epi32(corner[0], corner[1], corner[2], 0)}));
}

}  // namespace

ColorCandidates::ColorCandidates(std::span<const PaletteEntry> colors)
    : groups_(groupsOf<DistanceGroup>(colors)),
      leastDistances_(groups_.size() * DistanceGroup::kColors),
      greatestDistances_(leastDistances_.size()) {
  colors_.reserve(colors.size());
  squaredLengths_.reserve(colors.size());
  for (const PaletteEntry& color : colors) {
    colors_.push_back({color.blue, color.green, color.red});
    squaredLengths_.push_back(squaredLength(color));
  }
  opponents_.reserve(colors.size());
  candidates_.reserve(colors.size());
}

std::span<const std::uint8_t> ColorCandidates::within(const ColorBox& box, std::size_t opponents) {
  keepReachable(box);
  dropBeaten(box, opponents);
  return candidates_;
}

// A color whose least distance to the box is more than the greatest distance of another one is never the nearest.
void ColorCandidates::keepReachable(const ColorBox& box) {
  const ColorQuad low = fourTimesCorner(box.low);
  const ColorQuad high = fourTimesCorner(box.high);
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    const BoxDistances distances = groups_[i].distancesTo(low, high);
    std::memcpy(&leastDistances_[i * DistanceGroup::kColors], &distances.least, sizeof distances.least);
    std::memcpy(&greatestDistances_[i * DistanceGroup::kColors], &distances.greatest, sizeof distances.greatest);
  }
  const std::int32_t limit = *std::ranges::min_element(greatestDistances_);
  candidates_.clear();
  for (std::size_t i = 0; i < colors_.size(); ++i) {
    if (leastDistances_[i] <= limit) {
      candidates_.push_back(static_cast<std::uint8_t>(i));
    }
  }
}

// Of what is left, each is compared with those that are nearest at their farthest, first with what has beaten most
// lately.
void ColorCandidates::dropBeaten(const ColorBox& box, std::size_t opponents) {
  opponents_ = candidates_;
  const auto last = opponents_.begin() + static_cast<std::ptrdiff_t>(std::min(opponents_.size(), opponents));
  std::ranges::partial_sort(opponents_, last, {}, [&](std::uint8_t index) { return greatestDistances_[index]; });
  const auto isBeaten = [&](std::uint8_t candidate) {
    const auto winner =
        std::find_if(opponents_.begin(), last, [&](std::uint8_t other) { return beats(other, candidate, box); });
    if (winner == last) {
      return false;
    }
    std::iter_swap(opponents_.begin(), winner);
    return true;
  };
  std::erase_if(candidates_, isBeaten);
}

// Whether `winner` is nearer than `loser` everywhere in the box, or equally near and first. The difference of their
// squared distances is linear in the color, so it is greatest in a corner of the box.
bool ColorCandidates::beats(std::uint8_t winner, std::uint8_t loser, const ColorBox& box) const {
  std::int32_t greatest = squaredLengths_[winner] - squaredLengths_[loser];
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    const std::int32_t step = colors_[winner][channel] - colors_[loser][channel];
    greatest -= 2 * step * (step > 0 ? box.low[channel] : box.high[channel]);
  }
  return greatest < 0 || (greatest == 0 && winner < loser);
}

}  // namespace quillhue
