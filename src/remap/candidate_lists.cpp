#include "remap/candidate_lists.h"

#include <algorithm>

namespace quillhue {

// A key is 2^29 + 256 (lead - 2 t.p) + index, for a target t and a color p whose channels are less by 128. The product
// is less than 2^29 - 2^27, so keys are positive and have the same order as floats with the same bits. A lead of
// kMostLead or more never wins.
ColorGroup::ColorGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list,
                       std::span<const std::int32_t> leads, std::size_t start) {
  constexpr std::int32_t kMostLead = 1 << 22;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::size_t place = start + i < list.size() ? start + i : 0;
    const std::int32_t key = (1 << 29) + (std::min(leads[place], kMostLead) << 8) + list[place];
    colors_[i / ListedColors::kCount].set(i % ListedColors::kCount, key, colors[list[place]]);
  }
}

CandidateLists::CandidateLists(const ColorScan& scan, std::size_t bytes)
    : scan_(scan),
      candidates_(scan.colors()),
      groupLimit_(1 + std::min(bytes / sizeof(ColorGroup), std::size_t{kFirstGroup})),
      keptLimit_(1 + bytes / 10) {
  // Memory that is never used costs nothing.
  groups_.reserve(groupLimit_);
  more_.reserve(groupLimit_);
  constexpr std::array<std::uint8_t, 1> kAnyColor{0};
  constexpr std::array<std::int32_t, 1> kNoLead{0};
  groups_.assign(1, ColorGroup(scan.colors(), kAnyColor, kNoLead, 0));
  more_.resize(1);
  kept_.reserve(keptLimit_);
  kept_.push_back(0);
}

CandidateLists::Word CandidateLists::add(std::span<const std::uint8_t> indexes, const ColorVector& origin) {
  const std::size_t first = groups_.size();
  const std::size_t count = (indexes.size() + ColorGroup::kCount - 1) / ColorGroup::kCount;
  if (first + count > groupLimit_) {
    return kNone;
  }
  std::array<std::int32_t, kMostColors> all;
  const auto leads = std::span(all).first(indexes.size());
  const auto colors = scan_.colors();
  std::ranges::transform(indexes, leads.begin(), [&](std::uint8_t index) {
    const PaletteEntry& color = colors[index];
    return squaredLength(color) - 2 * (origin[0] * color.blue + origin[1] * color.green + origin[2] * color.red);
  });
  const std::int32_t least = std::ranges::min(leads);
  std::ranges::for_each(leads, [least](std::int32_t& lead) { lead -= least; });
  for (std::size_t start = 0; start < indexes.size(); start += ColorGroup::kCount) {
    groups_.emplace_back(colors, indexes, leads, start);
  }
  more_.resize(groups_.size());
  more_[first] = static_cast<std::uint8_t>(count - 1);
  return static_cast<Word>(first | kIsList | (count == 1 ? kIsShort : 0));
}

std::uint32_t CandidateLists::keep(std::span<const std::uint8_t> indexes) {
  const std::size_t place = kept_.size();
  if (place + 1 + indexes.size() > keptLimit_) {
    return 0;
  }
  kept_.push_back(static_cast<std::uint8_t>(indexes.size() - 1));
  kept_.insert(kept_.end(), indexes.begin(), indexes.end());
  return static_cast<std::uint32_t>(place);
}

std::span<const std::uint8_t> CandidateLists::kept(std::uint32_t place) const {
  return place == 0 ? candidates_.all() : std::span(kept_).subspan(place + 1, kept_[place] + std::size_t{1});
}

Lanes CandidateLists::searchOrScan(const Words& words, const PairedColors& twiceTargets,
                                   const EightColors& targets) const {
  Words lists = words;
  std::ranges::replace(lists, kNone, kAnyList);
  const std::array channels{numbersOf(targets.blue), numbersOf(targets.green), numbersOf(targets.red)};
  EightNumbers found = numbersOf(search(lists, Common(lists), twiceTargets));
  for (std::size_t lane = 0; lane < words.size(); ++lane) {
    if (words[lane] == kNone) {
      found[lane] = scan_.nearest({channels[0][lane], channels[1][lane], channels[2][lane]});
    }
  }
  return lanesOf(found);
}

}  // namespace quillhue
