#include "remap/color_candidates.h"

#include <algorithm>
#include <utility>

#include "remap/color_quad.h"

namespace quillhue {

ColorCandidates::ColorCandidates(std::span<const PaletteEntry> colors)
    : middleScores_(colors.size()), leads_(colors.size()) {
  for (const PaletteEntry& color : colors) {
    colors_.push_back({color.blue, color.green, color.red});
    squaredLengths_.push_back(squaredLength(color));
    floatLengths_.push_back(static_cast<float>(squaredLengths_.back()));
    for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
      channels_[channel].push_back(static_cast<float>(colors_.back()[channel]));
    }
  }
  rivals_.reserve(colors.size());
  candidates_.reserve(colors.size());
}

std::span<const std::uint8_t> ColorCandidates::within(const ColorBox& box, std::size_t most) {
  scoreAtMiddle(box);
  const auto nearest = std::ranges::min_element(middleScores_);
  keepUnbeatenBy(static_cast<std::uint8_t>(nearest - middleScores_.begin()), box);
  // With more rivals than this, too many would be left.
  constexpr std::size_t kHopeless = 3;
  candidates_.clear();
  if (rivals_.size() <= kHopeless * most) {
    dropBeaten(box, most);
  }
  return candidates_;
}

// Scores |p|^2 - 2 m.p for the middle m of the box: the nearer a color, the lower its score.
void ColorCandidates::scoreAtMiddle(const ColorBox& box) {
  middleScores_ = floatLengths_;
  for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
    const auto twiceMiddle = static_cast<float>(box.low[channel] + box.high[channel]);
    for (std::size_t i = 0; i < middleScores_.size(); ++i) {
      middleScores_[i] -= twiceMiddle * channels_[channel][i];
    }
  }
}

// Excludes most colors with floats, whose rounding errors kInexact covers.
void ColorCandidates::keepUnbeatenBy(std::uint8_t winner, const ColorBox& box) {
  constexpr float kInexact = 64;
  const float length = floatLengths_[winner] + kInexact;
  std::ranges::transform(floatLengths_, leads_.begin(), [length](float other) { return length - other; });
  for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
    const auto low = static_cast<float>(2 * box.low[channel]);
    const auto high = static_cast<float>(2 * box.high[channel]);
    const float own = channels_[channel][winner];
    for (std::size_t i = 0; i < leads_.size(); ++i) {
      const float step = channels_[channel][i] - own;
      leads_[i] += std::max(step * low, step * high);
    }
  }
  rivals_.clear();
  for (std::size_t i = 0; i < leads_.size(); ++i) {
    if (leads_[i] >= 0) {
      rivals_.push_back(static_cast<std::uint8_t>(i));
    }
  }
}

// A color is farther from the middle than the colors that beat it, and beats only what they beat too. So each color is
// compared only with nearer ones that are not beaten.
void ColorCandidates::dropBeaten(const ColorBox& box, std::size_t most) {
  std::ranges::sort(rivals_, {}, [&](std::uint8_t index) { return std::pair(middleScores_[index], index); });
  for (const std::uint8_t rival : rivals_) {
    if (std::ranges::any_of(candidates_, [&](std::uint8_t other) { return beats(other, rival, box); })) {
      continue;
    }
    if (candidates_.size() == most) {
      candidates_.clear();
      return;
    }
    candidates_.push_back(rival);
  }
  std::ranges::sort(candidates_);
}

// Returns whether `winner` is nearer than `loser` in the whole box, or equally near and first. The difference of their
// squared distances is linear in the color, so it is greatest in a corner of the box.
bool ColorCandidates::beats(std::uint8_t winner, std::uint8_t loser, const ColorBox& box) const {
  std::int32_t greatest = squaredLengths_[winner] - squaredLengths_[loser];
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    const std::int32_t step = 2 * (colors_[loser][channel] - colors_[winner][channel]);
    greatest += std::max(step * box.low[channel], step * box.high[channel]);
  }
  return greatest < 0 || (greatest == 0 && winner < loser);
}

}  // namespace quillhue
