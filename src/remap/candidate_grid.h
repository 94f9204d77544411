#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "remap/color_candidates.h"
#include "remap/color_groups.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors by cells of the color space, each with a list of the colors that can be the
/// nearest there. A list is made when so many targets have come to its cell that it will pay; until then all colors
/// are compared.
///
/// `Cells` tells how the space is divided: the Group that lists are made of, kCount, kVisitsBeforeList,
/// kMostOpponents, cellOf(PackedColor) and boxOf(cell).
template <typename Cells>
class CandidateGrid {
 public:
  using Group = typename Cells::Group;

  /// Lists take at most `listBytes`, beside one of all colors; when it is used up no more are made.
  CandidateGrid(std::span<const PaletteEntry> colors, std::size_t listBytes)
      : colors_(colors.begin(), colors.end()),
        candidates_(colors_),
        words_(Cells::kCount),
        groupLimit_(listBytes / sizeof(Group)) {
    groups_ = groupsOf<Group>(colors_);
    allColors_ = listFrom(0);
    groupLimit_ += groups_.size();
    // The last list may pass the limit, but is no longer than that of all colors. What is never used costs nothing.
    groups_.reserve(groupLimit_ + groups_.size());
  }

  /// The index of the nearest color to a target that Cells can place, the first of equally near ones.
  [[nodiscard]] std::uint8_t find(PackedColor target) {
    const std::size_t cell = Cells::cellOf(target);
    std::uint32_t list = words_.all()[cell];
    if (list < kFirstList) [[unlikely]] {
      list = visit(cell);
    }
    return Group::nearest(&groups_[(list >> kLengthBits) - 1], list % kFirstList, target);
  }

 private:
  // A cell's word counts its visits, and is then the place and length of its list in groups_.
  static constexpr std::uint32_t kFirstList = 256;
  static constexpr std::uint32_t kLengthBits = 8;
  static_assert(Cells::kVisitsBeforeList < kFirstList && 256 / Group::kColors < kFirstList);

  [[gnu::noinline]] std::uint32_t visit(std::size_t cell) {
    std::uint32_t& word = words_.all()[cell];
    if (word++ < Cells::kVisitsBeforeList) {
      return allColors_;
    }
    word = groups_.size() < groupLimit_ ? makeList(cell) : allColors_;
    return word;
  }

  std::uint32_t makeList(std::size_t cell) {
    const std::size_t first = groups_.size();
    appendGroups(groups_, colors_, candidates_.within(Cells::boxOf(cell), Cells::kMostOpponents));
    return listFrom(first);
  }

  [[nodiscard]] std::uint32_t listFrom(std::size_t first) const {
    return static_cast<std::uint32_t>((first + 1) << kLengthBits | (groups_.size() - first));
  }

  std::vector<PaletteEntry> colors_;
  ColorCandidates candidates_;
  ZeroedMemory<std::uint32_t> words_;
  std::vector<Group> groups_;
  std::size_t groupLimit_;
  std::uint32_t allColors_ = 0;
};

}  // namespace quillhue
