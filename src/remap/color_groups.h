#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_lanes.h"

namespace quillhue {

/// Four colors in 16-bit lanes, in pairs that a multiply-add takes: blue and green, red and 0.
struct ColorQuad {
  __m128i blueGreen;
  __m128i red;
};

/// One color in the lanes of a ColorQuad, four times.
[[nodiscard]] inline ColorQuad fourTimes(PackedColor color) {
  return {_mm_shuffle_epi32(color.lanes, 0x00), _mm_shuffle_epi32(color.lanes, 0x55)};
}

/// The sums, for each of the four colors, of the products of its channels with the other's.
[[nodiscard]] inline __m128i dotProducts(const ColorQuad& a, const ColorQuad& b) {
  return _mm_add_epi32(_mm_madd_epi16(a.blueGreen, b.blueGreen), _mm_madd_epi16(a.red, b.red));
}

[[nodiscard]] constexpr std::int32_t squaredLength(const PaletteEntry& color) {
  return color.red * color.red + color.green * color.green + color.blue * color.blue;
}

/// The part of a color's key, of which KeyGroup tells, that does not depend on the target.
template <int indexBits>
[[nodiscard]] constexpr std::int32_t keyStart(const PaletteEntry& color, std::uint8_t index) {
  return (squaredLength(color) << indexBits) + index + (1 << 30);
}

/// Eight colors and their indexes, compared with a target by keys: for color p, its index i and target t the key is
/// f (|p|^2 - 2 t.p) + i + 2^30, where f is above all indexes. It is least for the nearest color and, of equally near
/// ones, for the first, whose index is then in the low bits. 2^30 keeps keys positive, and the bits of positive floats
/// have the order of the floats: SSE2 has a minimum for these, but none for integers of 32 bits.
///
/// With indexes of 8 bits each channel of a target is from -1024 to 1023, with 5 bits from -16384 to 16383.
template <int indexBits>
class KeyGroup {
 public:
  static constexpr std::size_t kColors = 8;

  KeyGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t, kColors> indexes);

  [[nodiscard]] static bool has(PackedColor target) {
    constexpr int kTargetBits = indexBits == 8 ? 11 : 15;
    return isWithin<-(1 << (kTargetBits - 1)), kTargetBits>(target);
  }

  /// The index of the nearest color of all groups, at least one.
  [[nodiscard]] static std::uint8_t nearest(const KeyGroup* groups, std::size_t count, PackedColor target) {
    const ColorQuad targets = fourTimes({_mm_slli_epi16(target.lanes, kTargetShift)});
    __m128 least = groups->leastKeys(targets);
    while (--count > 0) {
      least = _mm_min_ps(least, (++groups)->leastKeys(targets));
    }
    least = _mm_min_ps(least, _mm_shuffle_ps(least, least, _MM_SHUFFLE(1, 0, 3, 2)));
    least = _mm_min_ps(least, _mm_shuffle_ps(least, least, _MM_SHUFFLE(2, 3, 0, 1)));
    return static_cast<std::uint8_t>(_mm_cvtsi128_si32(_mm_castps_si128(least)) & ((1 << indexBits) - 1));
  }

 private:
  // 2 f is the product of what multiplies the colors and what multiplies the target, so that both fit into 16 bits.
  static constexpr int kTargetShift = indexBits == 8 ? 2 : 0;
  static constexpr int kColorShift = indexBits + 1 - kTargetShift;

  // The part of four keys that does not depend on the target, and what the target multiplies.
  struct Quad {
    __m128i start;
    ColorQuad colors;
  };

  [[nodiscard]] static __m128 keys(const Quad& quad, const ColorQuad& targets) {
    return _mm_castsi128_ps(_mm_add_epi32(quad.start, dotProducts(quad.colors, targets)));
  }
  [[nodiscard]] __m128 leastKeys(const ColorQuad& targets) const {
    return _mm_min_ps(keys(quads_[0], targets), keys(quads_[1], targets));
  }

  std::array<Quad, 2> quads_{};
};

/// Squared distances of four colors to what is nearest and to what is farthest in a box.
struct BoxDistances {
  __m128i least;
  __m128i greatest;
};

/// Four colors and their indexes, compared by squared distances.
class DistanceGroup {
 public:
  static constexpr std::size_t kColors = 4;

  DistanceGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t, kColors> indexes);

  /// To the box with these corners, within -26000 .. 26000.
  [[nodiscard]] BoxDistances distancesTo(const ColorQuad& low, const ColorQuad& high) const;

  /// The index of the nearest color of all groups and, of equally near ones, the least. The target is from -26000 to
  /// 26000 in each channel, so that distances stay below 2^31.
  [[nodiscard]] static std::uint8_t nearest(const DistanceGroup* groups, std::size_t count, PackedColor target);

  /// The same for a target of any numbers, with distances that wrap: they are what 32 bits hold of them.
  [[nodiscard]] static std::uint8_t nearestWrapping(const DistanceGroup* groups, std::size_t count, ColorLanes target);

 private:
  ColorQuad colors_;
  __m128i indexes_;
};

/// Groups of the colors that have these indexes, at least one. The last one is filled up with the first color, which
/// changes nothing.
template <typename Group>
void appendGroups(std::vector<Group>& groups, std::span<const PaletteEntry> colors,
                  std::span<const std::uint8_t> indexes) {
  for (std::size_t start = 0; start < indexes.size(); start += Group::kColors) {
    std::array<std::uint8_t, Group::kColors> members{};
    for (std::size_t i = 0; i < members.size(); ++i) {
      members[i] = indexes[start + i < indexes.size() ? start + i : 0];
    }
    groups.emplace_back(colors, members);
  }
}

/// Groups of all colors.
template <typename Group>
[[nodiscard]] std::vector<Group> groupsOf(std::span<const PaletteEntry> colors) {
  std::vector<std::uint8_t> indexes(colors.size());
  std::iota(indexes.begin(), indexes.end(), std::uint8_t{0});
  std::vector<Group> groups;
  groups.reserve((colors.size() + Group::kColors - 1) / Group::kColors);
  appendGroups(groups, colors, indexes);
  return groups;
}

}  // namespace quillhue
