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

/// Eight colors of a list, with the parts of their keys that do not depend on the target. It fills one line of the
/// processor's cache.
class alignas(64) ColorGroup {
 public:
  static constexpr std::size_t kCount = 2 * ListedColors::kCount;

  /// Takes eight colors of `list` from the place `start` on. If the list ends before, repeats its first color, which
  /// changes no result. `leads` has, for each color of the list, its squared distance to the origin of the list minus
  /// the least one.
  ColorGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list,
             std::span<const std::int32_t> leads, std::size_t start);

  friend bool operator==(const ColorGroup&, const ColorGroup&) = default;

  /// Returns the lesser key of each of four pairs of colors. The low byte of a key is the index.
  [[nodiscard]] __m128 keys(const ColorQuad& twiceTarget) const {
    const auto keysOf = [&](const ListedColors& four) {
      return _mm_castsi128_ps(_mm_sub_epi32(four.starts(), four.products(twiceTarget)));
    };
    return _mm_min_ps(keysOf(colors_[0]), keysOf(colors_[1]));
  }

 private:
  std::array<ListedColors, 2> colors_;
};

/// Lists of the colors that can be the nearest to some targets. Equal lists are one, because the processor's caches are
/// small. A list has an origin, and its targets are given relative to it: as keys have 32 bits, they must be from -2048
/// to 2047 in each channel.
class CandidateLists {
 public:
  /// A list, kNone if all colors have to be compared, or 0.
  using Word = std::uint16_t;
  using Words = std::array<Word, Lanes::kCount>;
  static constexpr Word kNone = 1;

  /// Lists use at most about `bytes`, and kept candidates a tenth of it. `scan` must outlive them.
  CandidateLists(const ColorScan& scan, std::size_t bytes);

  /// Makes a list, or finds an equal one. Returns kNone if there is no memory for more lists.
  [[nodiscard]] Word add(std::span<const std::uint8_t> indexes, const ColorVector& origin);

  /// The bits that eight words have in common.
  class Common {
   public:
    [[nodiscard, gnu::always_inline]] explicit Common(const Words& words) {
      forEachLane([&](auto lane) { all_ &= words[lane]; });
    }
    [[nodiscard]] bool areLists() const { return (all_ & kIsList) != 0; }
    [[nodiscard]] bool areShort() const { return (all_ & kIsShort) != 0; }

   private:
    unsigned all_ = kIsList | kIsShort;
  };

  /// Returns, for each target, the index of the nearest color of its list, the first of equally near ones.
  /// `twiceTargets` are relative to the origins of the lists.
  [[nodiscard, gnu::always_inline]] Lanes search(const Words& lists, Common common,
                                                 const PairedColors& twiceTargets) const {
    const auto keys = [&](auto lane) { return firstGroup(lists[lane])->keys(twiceTargets.fourTimes<lane>()); };
    const auto longKeys = [&](auto lane) { return keysIn(lists[lane], twiceTargets.fourTimes<lane>()); };
    return (common.areShort() ? leastKeys(keys) : leastKeys(longKeys)) & Lanes::all(255);
  }
  /// The same for words that may be kNone. `targets` are the targets themselves.
  [[nodiscard]] Lanes searchOrScan(const Words& words, const PairedColors& twiceTargets,
                                   const EightColors& targets) const;

  [[nodiscard]] ColorCandidates& candidates() { return candidates_; }

  /// Keeps the candidates of a large box, among which those of smaller ones are. Returns 0 if there is no memory.
  [[nodiscard]] std::uint32_t keep(std::span<const std::uint8_t> indexes);
  /// Returns what was kept, or all colors for 0.
  [[nodiscard]] std::span<const std::uint8_t> kept(std::uint32_t place) const;

 private:
  // A list's word has kIsList, kIsShort if it has one group, and the index of its first group in groups_.
  static constexpr unsigned kIsList = 1U << 15;
  static constexpr unsigned kIsShort = 1U << 14;
  static constexpr unsigned kFirstGroup = kIsShort - 1;
  static constexpr Word kAnyList = kIsList | kIsShort;
  static constexpr std::size_t kMostColors = 256;

  [[nodiscard]] const ColorGroup* firstGroup(Word list) const { return &groups_[list & kFirstGroup]; }
  // Returns four keys. The least belongs to the nearest color.
  [[nodiscard]] __m128 keysIn(Word list, const ColorQuad& twiceTarget) const {
    const ColorGroup* group = firstGroup(list);
    __m128 least = group->keys(twiceTarget);
    for (unsigned more = more_[list & kFirstGroup]; more > 0; --more) {
      least = _mm_min_ps(least, (++group)->keys(twiceTarget));
    }
    return least;
  }

  // Returns the slot of slots_ that has the list of `count` groups equal to the last groups, or that is free for them.
  [[nodiscard]] Word& slotOfLast(std::size_t count);

  const ColorScan& scan_;
  ColorCandidates candidates_;
  // The first one has any color.
  std::vector<ColorGroup> groups_;
  // How many groups follow the first one of a list.
  std::vector<std::uint8_t> more_;
  std::size_t groupLimit_;
  // A hash table of all lists. 0 is free.
  ZeroedMemory<Word> slots_;
  std::size_t keptLimit_;
  // For each kept list the number of indexes - 1, and the indexes.
  std::vector<std::uint8_t> kept_;
};

}  // namespace quillhue
