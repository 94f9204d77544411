#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_candidates.h"
#include "remap/color_quad.h"
#include "remap/color_scan.h"

namespace quillhue {

/// Eight colors of a list, with the parts of their keys that do not depend on the target.
class ColorGroup {
 public:
  static constexpr std::size_t kCount = 2 * ListedColors::kCount;

  /// Takes eight colors of `list` from the place `start` on. If the list ends before, repeats its first color, which
  /// changes no result. `leads` has, for each color of the list, its squared distance to the origin of the list minus
  /// the least one.
  ColorGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list,
             std::span<const std::int32_t> leads, std::size_t start);

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

/// Lists of the colors that can be the nearest to some targets. A list has an origin, and its targets are given
/// relative to it: as keys have 32 bits, they must be from -2048 to 2047 in each channel.
class CandidateLists {
 public:
  /// A list, kNone if all colors have to be compared, or 0.
  using Word = std::uint32_t;
  using Words = std::array<Word, Lanes::kCount>;
  static constexpr Word kNone = 1;

  /// Lists use at most about `bytes`, and kept candidates a tenth of it. `scan` must outlive them.
  CandidateLists(const ColorScan& scan, std::size_t bytes);

  /// Makes a list. Returns kNone if there is no memory for more lists.
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
    Word all_ = ~Word{0};
  };

  /// Returns, for each target, the index of the nearest color of its list, the first of equally near ones.
  /// `twiceTargets` are relative to the origins of the lists.
  [[nodiscard, gnu::always_inline]] Lanes search(const Words& lists, Common common,
                                                 const PairedColors& twiceTargets) const {
    std::array<const ColorGroup*, Lanes::kCount> groups;
    forEachLane([&](auto lane) { groups[lane] = &groups_[lists[lane] & kFirstGroup]; });
    const Lanes keys =
        common.areShort()
            ? leastKeys([&](auto lane) { return groups[lane]->keys(twiceTargets.fourTimes<lane>()); })
            : leastKeys([&](auto lane) { return keysIn(lists[lane], groups[lane], twiceTargets.fourTimes<lane>()); });
    return keys & Lanes::all(255);
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
  // A list's word has kIsList, kIsShort if it has one group, the number of its groups - 1, and the index of its first
  // group in groups_.
  static constexpr Word kIsList = 1U << 31;
  static constexpr Word kIsShort = 1U << 30;
  static constexpr Word kLengthShift = 25;
  static constexpr Word kFirstGroup = (1U << kLengthShift) - 1;
  static constexpr Word kAnyList = kIsList | kIsShort;
  static constexpr std::size_t kMostColors = 256;
  static_assert(kMostColors / ColorGroup::kCount <= kIsShort >> kLengthShift);

  // Returns four keys. The least belongs to the nearest color.
  [[nodiscard]] static __m128 keysIn(Word list, const ColorGroup* groups, const ColorQuad& twiceTarget) {
    __m128 least = groups->keys(twiceTarget);
    for (Word more = list << 2 >> (kLengthShift + 2); more > 0; --more) {
      least = _mm_min_ps(least, (++groups)->keys(twiceTarget));
    }
    return least;
  }

  const ColorScan& scan_;
  ColorCandidates candidates_;
  // The first group is the list kAnyList.
  std::vector<ColorGroup> groups_;
  std::size_t groupLimit_;
  std::size_t keptLimit_;
  // For each kept list the number of indexes - 1, and the indexes.
  std::vector<std::uint8_t> kept_;
};

}  // namespace quillhue
