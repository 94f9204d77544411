#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_candidates.h"
#include "remap/color_quad.h"

namespace quillhue {

/// Four colors of a cell's list. Targets are given as offsets from the middle of the cell, because keys of the targets
/// themselves could exceed 32 bits. The low bits of a key are the color's place in the list.
class FarGroup {
 public:
  static constexpr std::size_t kCount = ListedColors::kCount;
  static constexpr std::size_t kMostColors = 64;

  /// Takes four colors of `list` from the place `start` on, each of which can be the nearest in the cell. `scores` are
  /// |p|^2 - 2 m.p for the middle m of the cell, minus the least score of the list. If the list ends before, repeats
  /// its first color, which changes no result.
  FarGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list,
           std::span<const std::int32_t> scores, std::size_t start);

  /// Returns the keys for an offset from -8192 to 8191 in each channel.
  [[nodiscard]] __m128 keys(const ColorQuad& offset) const {
    return _mm_castsi128_ps(_mm_sub_epi32(colors_.starts(), _mm_srai_epi32(colors_.products(offset), 1)));
  }
  /// Returns the indexes of the colors with these keys, one in each of eight lists.
  [[nodiscard]] static Lanes indexesOf(Lanes keys, const std::array<const FarGroup*, Lanes::kCount>& lists) {
    return lanesBy([&](auto lane) {
      const std::size_t place = lowHalfOf<lane>(keys) % kMostColors;
      return lists[lane][place / kCount].colors_.index(place % kCount);
    });
  }

 private:
  ListedColors colors_;
};

/// Divides the space around the color cube, up to 65000 in each direction, into cells that grow with the distance,
/// because only the direction of a distant target matters. Each channel t is divided into slabs by the larger of t and
/// 256 - t: from 128 on, two slabs are 64 wide, the next two 128 and so on. The exponent and the highest bit of the
/// mantissa of a float number them.
struct FarCells {
  using Group = FarGroup;
  static constexpr std::int32_t kSlabs = 36;
  static constexpr std::size_t kCount = std::size_t{kSlabs} * kSlabs * kSlabs;
  static constexpr std::size_t kMostColors = FarGroup::kMostColors;
  static constexpr std::int32_t kMost = 65535;

  /// Returns all bits in the lanes of targets outside all cells.
  [[nodiscard]] static Lanes areBeyond(const EightColors& targets) {
    const auto isBeyond = [](Lanes numbers) {
      return (Lanes::all(kMost) < numbers) | (numbers < Lanes::all(256 - kMost));
    };
    return isBeyond(targets.blue) | isBeyond(targets.green) | isBeyond(targets.red);
  }
  [[nodiscard]] static Lanes cellsOf(const EightColors& targets) {
    static_assert(kSlabs == 36);
    const auto timesSlabs = [](Lanes lanes) { return (lanes << 5) + (lanes << 2); };
    return timesSlabs(timesSlabs(slabsOf(targets.red)) + slabsOf(targets.green)) + slabsOf(targets.blue);
  }
  /// Returns the targets as offsets from the middles of their cells.
  [[nodiscard]] static PairedColors prepared(const EightColors& targets) {
    return PairedColors({offsetsOf(targets.blue), offsetsOf(targets.green), offsetsOf(targets.red)});
  }
  [[nodiscard]] static ColorBox boxOf(std::size_t cell);
  static void appendList(std::vector<FarGroup>& groups, std::span<const PaletteEntry> colors,
                         std::span<const std::uint8_t> list, std::size_t cell);

 private:
  // Bits of a float that do not count, and the other bits of 128.
  static constexpr int kIgnoredBits = 22;
  static constexpr std::int32_t kFirstSlab = (127 + 7) << 1;

  struct Magnitudes {
    __m128 low;
    __m128 high;

    [[nodiscard]] Lanes bits() const { return {_mm_castps_si128(low), _mm_castps_si128(high)}; }
  };

  [[nodiscard]] static Magnitudes magnitudesOf(Lanes numbers) {
    const auto four = [](__m128i half) {
      const __m128 floats = _mm_cvtepi32_ps(half);
      return _mm_max_ps(floats, _mm_sub_ps(_mm_set1_ps(256), floats));
    };
    return {four(numbers.low), four(numbers.high)};
  }
  [[nodiscard]] static Lanes areMirrored(Lanes numbers) { return numbers < Lanes::all(128); }
  [[nodiscard]] static Lanes slabsOf(Lanes numbers) {
    const Lanes counted = unsignedShiftRight(magnitudesOf(numbers).bits(), kIgnoredBits) - Lanes::all(kFirstSlab);
    return (counted ^ areMirrored(numbers)) + Lanes::all(kSlabs / 2);
  }
  [[nodiscard]] static Lanes offsetsOf(Lanes numbers) {
    const Magnitudes magnitudes = magnitudesOf(numbers);
    const Lanes middles =
        (unsignedShiftRight(magnitudes.bits(), kIgnoredBits) << kIgnoredBits) | Lanes::all(1 << (kIgnoredBits - 1));
    const Lanes offsets{_mm_cvtps_epi32(_mm_sub_ps(magnitudes.low, _mm_castsi128_ps(middles.low))),
                        _mm_cvtps_epi32(_mm_sub_ps(magnitudes.high, _mm_castsi128_ps(middles.high)))};
    // Mirrored slabs have mirrored offsets.
    const Lanes mirrored = areMirrored(numbers);
    return (offsets ^ mirrored) - mirrored;
  }
};

}  // namespace quillhue
