#include "remap/candidate_lists.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string_view>
#include <type_traits>

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
      slots_(std::bit_ceil(2 * groupLimit_)),
      keptLimit_(1 + bytes / 10) {
  // Memory that is never used costs nothing. A list is written before it is compared with the others.
  groups_.reserve(groupLimit_ + kMostColors / ColorGroup::kCount);
  more_.reserve(groupLimit_);
  constexpr std::array<std::uint8_t, 1> kAnyColor{0};
  constexpr std::array<std::int32_t, 1> kNoLead{0};
  groups_.assign(1, ColorGroup(scan.colors(), kAnyColor, kNoLead, 0));
  more_.resize(1);
  kept_.reserve(keptLimit_);
  kept_.push_back(0);
}

CandidateLists::Word CandidateLists::add(std::span<const std::uint8_t> indexes, const ColorVector& origin) {
  std::array<std::int32_t, kMostColors> all;
  const auto leads = std::span(all).first(indexes.size());
  const auto colors = scan_.colors();
  std::ranges::transform(indexes, leads.begin(), [&](std::uint8_t index) {
    const PaletteEntry& color = colors[index];
    return squaredLength(color) - 2 * (origin[0] * color.blue + origin[1] * color.green + origin[2] * color.red);
  });
  const std::int32_t least = std::ranges::min(leads);
  std::ranges::for_each(leads, [least](std::int32_t& lead) { lead -= least; });
  const std::size_t first = groups_.size();
  for (std::size_t start = 0; start < indexes.size(); start += ColorGroup::kCount) {
    groups_.emplace_back(colors, indexes, leads, start);
  }
  const std::size_t count = groups_.size() - first;
  Word& slot = slotOfLast(count);
  if (slot != 0 || groups_.size() > groupLimit_) {
    groups_.erase(groups_.begin() + static_cast<std::ptrdiff_t>(first), groups_.end());
    return slot != 0 ? slot : kNone;
  }
  more_.resize(groups_.size());
  more_[first] = static_cast<std::uint8_t>(count - 1);
  slot = static_cast<Word>(first | kIsList | (count == 1 ? kIsShort : 0));
  return slot;
}

CandidateLists::Word& CandidateLists::slotOfLast(std::size_t count) {
  static_assert(std::has_unique_object_representations_v<ColorGroup>);
  const auto added = std::span(groups_).last(count);
  const auto bytes = std::as_bytes(added);
  const std::size_t hash = std::hash<std::string_view>()({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  const auto isOther = [&](Word list) {
    const std::size_t first = list & kFirstGroup;
    return more_[first] + std::size_t{1} != count ||
           !std::ranges::equal(added, std::span(groups_).subspan(first, count));
  };
  // At most half of the slots are used.
  const auto slots = slots_.all();
  std::size_t place = hash & (slots.size() - 1);
  while (slots[place] != 0 && isOther(slots[place])) {
    place = (place + 1) & (slots.size() - 1);
  }
  return slots[place];
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
