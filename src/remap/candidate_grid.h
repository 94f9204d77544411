#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "remap/color_candidates.h"
#include "remap/color_quad.h"
#include "remap/color_scan.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors. The color space is divided into cells. Each cell has a list of the colors
/// that can be the nearest inside it; the list is made when the first target falls into the cell.
///
/// `Cells` supplies the division: kCount cells, cellsOf(targets) and boxOf(cell). appendList(groups, colors, indexes,
/// cell) makes a list of Groups, which hold at most kMostColors colors. A Group compares prepared(targets).
template <typename Cells>
class CandidateGrid {
 public:
  using Group = typename Cells::Group;

  /// Lists use at most `listBytes`. After that no more are made, and targets in other cells are compared with all
  /// colors. `scan` must outlive the grid.
  CandidateGrid(const ColorScan& scan, std::size_t listBytes)
      : scan_(scan), candidates_(scan.colors()), words_(Cells::kCount), groupLimit_(listBytes / sizeof(Group)) {
    // The last list may exceed the limit. Memory that is never used costs nothing.
    groups_.reserve(groupLimit_ + Cells::kMostColors / Group::kCount + 1);
    constexpr std::array<std::uint8_t, 1> kAnyColor{0};
    Cells::appendList(groups_, scan.colors(), kAnyColor, 0);
  }

  /// Returns the index of the nearest color to each target, the first of equally near ones. `Cells` must have a cell
  /// for each target.
  [[nodiscard, gnu::always_inline]] Lanes find(const EightColors& targets) {
    const Lanes cells = Cells::cellsOf(targets);
    const std::uint32_t* const words = words_.all().data();
    Words lists;
    forEachLane([&](auto lane) { lists[lane] = words[lowHalfOf<lane>(cells)]; });
    return areLists(lists) ? search(lists, targets) : findSlowly(targets, cells);
  }

 private:
  // A cell's word: 0 before the first target; kNone for a cell without a list; otherwise kIsList, the list's number of
  // groups - 1, and the index of its first group in groups_.
  static constexpr std::uint32_t kIsList = 1U << 31;
  static constexpr std::uint32_t kLengthShift = 25;
  static constexpr std::uint32_t kNone = 1;
  static constexpr std::uint32_t kAnyList = kIsList;
  static_assert(Cells::kMostColors / Group::kCount <= kIsList >> kLengthShift);

  using Words = std::array<std::uint32_t, Lanes::kCount>;

  [[nodiscard, gnu::always_inline]] static bool areLists(const Words& words) {
    std::uint32_t all = kIsList;
    forEachLane([&](auto lane) { all &= words[lane]; });
    return all != 0;
  }

  [[nodiscard, gnu::always_inline]] Lanes search(const Words& lists, const EightColors& targets) const {
    std::array<const Group*, Lanes::kCount> starts;
    forEachLane([&](auto lane) { starts[lane] = &groups_[lists[lane] & ((1U << kLengthShift) - 1)]; });
    const PairedColors prepared = Cells::prepared(targets);
    const Lanes keys =
        leastKeys([&](auto lane) { return keysIn(lists[lane], starts[lane], prepared.template fourTimes<lane>()); });
    return Group::indexesOf(keys, starts);
  }

  // Returns four keys. The least belongs to the nearest color.
  [[nodiscard]] static __m128 keysIn(std::uint32_t list, const Group* groups, const ColorQuad& target) {
    __m128 least = groups->keys(target);
    for (std::uint32_t more = list << 1 >> (kLengthShift + 1); more > 0; --more) {
      least = _mm_min_ps(least, (++groups)->keys(target));
    }
    return least;
  }

  [[gnu::noinline]] Lanes findSlowly(const EightColors& targets, Lanes cells) {
    const std::array channels{numbersOf(targets.blue), numbersOf(targets.green), numbersOf(targets.red)};
    const auto targetAt = [&](std::size_t lane) {
      return ColorVector{channels[0][lane], channels[1][lane], channels[2][lane]};
    };
    const EightNumbers cell = numbersOf(cells);
    Words lists{};
    std::ranges::transform(cell, lists.begin(),
                           [this](std::int32_t number) { return listOf(static_cast<std::size_t>(number)); });
    Words valid = lists;
    std::ranges::replace(valid, kNone, kAnyList);
    EightNumbers found = numbersOf(search(valid, targets));
    for (std::size_t lane = 0; lane < lists.size(); ++lane) {
      if (lists[lane] == kNone) {
        found[lane] = scan_.nearest(targetAt(lane));
      }
    }
    return lanesOf(found);
  }

  std::uint32_t listOf(std::size_t cell) {
    std::uint32_t& word = words_.all()[cell];
    if (word == 0) {
      word = groups_.size() < groupLimit_ ? makeList(cell) : kNone;
    }
    return word;
  }

  std::uint32_t makeList(std::size_t cell) {
    const auto indexes = candidates_.within(Cells::boxOf(cell), Cells::kMostColors);
    if (indexes.empty()) {
      return kNone;
    }
    const std::size_t first = groups_.size();
    Cells::appendList(groups_, scan_.colors(), indexes, cell);
    return static_cast<std::uint32_t>(kIsList | (groups_.size() - first - 1) << kLengthShift | first);
  }

  const ColorScan& scan_;
  ColorCandidates candidates_;
  ZeroedMemory<std::uint32_t> words_;
  // The first group is the list kAnyList.
  std::vector<Group> groups_;
  std::size_t groupLimit_;
};

}  // namespace quillhue
