#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/candidate_grid.h"
#include "remap/color_groups.h"
#include "remap/color_lanes.h"

namespace quillhue {

/// The cube from -128 to 383 in each channel, in 32 x 32 x 32 cells: what images hold and most of what error diffusion
/// makes of it.
struct NearCells {
  using Group = KeyGroup<8>;
  static constexpr std::size_t kCount = std::size_t{1} << 15;
  static constexpr std::uint32_t kVisitsBeforeList = 24;
  static constexpr std::size_t kMostOpponents = 16;

  [[nodiscard]] static bool has(PackedColor target) { return isWithin<-128, 9>(target); }
  [[nodiscard]] static std::size_t cellOf(PackedColor target) {
    const __m128i coordinates = _mm_srli_epi16(_mm_add_epi16(target.lanes, _mm_set1_epi16(128)), 4);
    const auto bits = static_cast<std::uint64_t>(_mm_cvtsi128_si64(coordinates));
    return (bits | bits >> 11 | bits >> 22) & (kCount - 1);
  }
  [[nodiscard]] static ColorBox boxOf(std::size_t cell);
};

/// What is beyond, up to 26000 in each channel, in cells that are the larger the farther they are: what matters there
/// is the direction.
struct FarCells {
  using Group = DistanceGroup;
  // Eight slabs of 64 through the cube and as many on each side.
  static constexpr std::int32_t kSlabs = 24;
  static constexpr std::size_t kCount = std::size_t{kSlabs} * kSlabs * kSlabs;
  static constexpr std::uint32_t kVisitsBeforeList = 48;
  static constexpr std::size_t kMostOpponents = 32;

  [[nodiscard]] static bool has(PackedColor target);
  [[nodiscard]] static std::size_t cellOf(PackedColor target);
  [[nodiscard]] static ColorBox boxOf(std::size_t cell);
};

/// Finds the nearest of at most 256 colors.
class NearestEntry {
 public:
  /// Up to so many colors comparing all of them is faster than looking for the few that count.
  static constexpr std::size_t kFewColors = 24;

  /// Of at least one color. What is learned about the space takes at most about 5/4 `listBytes` and 200 KiB: far
  /// targets have lists of their own.
  NearestEntry(std::span<const PaletteEntry> colors, std::size_t listBytes);

  [[nodiscard]] std::span<const PaletteEntry> colors() const { return colors_; }
  [[nodiscard]] bool hasFewColors() const { return colors_.size() <= kFewColors; }

  /// The index of the first color with the smallest squared distance to `target`, which may be any numbers: the
  /// distance wraps.
  [[nodiscard]] std::uint8_t find(ColorLanes target) { return hasFewColors() ? findOfFew(target) : findOfMany(target); }

  /// The same for a caller who has asked hasFewColors before.
  [[nodiscard]] std::uint8_t findOfFew(ColorLanes target) {
    const PackedColor color = packed(target);
    return FewGroup::has(color) ? FewGroup::nearest(all_.data(), all_.size(), color) : findFar(target);
  }
  [[nodiscard]] std::uint8_t findOfMany(ColorLanes target) {
    const PackedColor color = packed(target);
    return NearCells::has(color) ? near_->find(color) : findFar(target);
  }

 private:
  using FewGroup = KeyGroup<5>;
  static_assert(kFewColors <= 1 << 5);

  [[gnu::noinline]] std::uint8_t findFar(ColorLanes target);

  std::vector<PaletteEntry> colors_;
  bool areGreys_;
  // Of few colors.
  std::vector<FewGroup> all_;
  std::size_t listBytes_;
  // Of many colors.
  std::unique_ptr<CandidateGrid<NearCells>> near_;
  // From the first far target on.
  std::unique_ptr<CandidateGrid<FarCells>> far_;
  std::vector<DistanceGroup> allForFar_;
};

}  // namespace quillhue
