#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/candidate_lists.h"
#include "remap/color_scan.h"
#include "remap/far_grid.h"
#include "remap/flat_colors.h"
#include "remap/near_grid.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors.
class NearestEntry {
 public:
  /// Comparing all colors is faster than using lists for up to this number of colors.
  static constexpr std::size_t kFewColors = 24;

  /// Takes at least one color. Lists of candidates use at most about `listBytes`; tables use 130 KiB, and 595 KiB
  /// more for targets far outside the color cube.
  NearestEntry(std::span<const PaletteEntry> colors, std::size_t listBytes);
  NearestEntry(const NearestEntry&) = delete;
  NearestEntry& operator=(const NearestEntry&) = delete;
  ~NearestEntry() = default;

  [[nodiscard]] std::span<const PaletteEntry> colors() const { return scan_.colors(); }
  [[nodiscard]] bool hasFewColors() const { return colors().size() <= kFewColors; }

  /// Returns, for each target, the index of the first color with the smallest squared distance. Targets may be any
  /// numbers: distances wrap to signed 32 bits.
  [[nodiscard]] Lanes find(const EightColors& targets) {
    return hasFewColors() ? findOfFew(targets) : findOfMany(targets);
  }

  /// The same for a caller that has checked hasFewColors.
  [[nodiscard, gnu::always_inline]] Lanes findOfFew(const EightColors& targets);
  [[nodiscard, gnu::always_inline]] Lanes findOfMany(const EightColors& targets) {
    return NearGrid::has(targets) ? near_->find(targets) : findFar(targets);
  }

 private:
  // Four times the start of a color's key and its factors for the target's channels.
  struct FewColor {
    __m128i start;
    ColorQuad factors;
  };
  static constexpr int kFewBits = 5;
  static_assert(kFewColors <= 1 << kFewBits);

  [[gnu::noinline]] Lanes findFar(const EightColors& targets);
  // Compares targets with all colors where distances may wrap differently.
  [[nodiscard, gnu::noinline]] Lanes findOrScan(const EightColors& targets);
  // Takes targets whose wrapped distances have the same order as the true ones.
  [[nodiscard]] Lanes findOrdered(const EightColors& targets, FarGrid::Distances distances);

  ColorScan scan_;
  FlatColors flat_;
  // The middle of the color cube, flattened.
  EightColors middle_;
  std::vector<FewColor> few_;
  CandidateLists lists_;
  // Only with many colors.
  std::unique_ptr<NearGrid> near_;
  // Made for the first far target.
  std::unique_ptr<FarGrid> far_;
};

// Compares targets from -16384 to 16383 in each channel with all colors.
inline Lanes NearestEntry::findOfFew(const EightColors& targets) {
  constexpr std::int32_t kReach = 1 << 14;
  const EightColors fromLow = targets + EightColors::all({kReach, kReach, kReach});
  if (!areZero(unsignedShiftRight(fromLow.blue | fromLow.green | fromLow.red, 15))) [[unlikely]] {
    return findFar(targets);
  }
  const PairedColors paired(targets);
  const auto keys = [](const FewColor& color, const ColorQuad& four) {
    return _mm_castsi128_ps(_mm_sub_epi32(color.start, dotProducts(color.factors, four)));
  };
  __m128 low = keys(few_.front(), paired.low());
  __m128 high = keys(few_.front(), paired.high());
  for (std::size_t i = 1; i < few_.size(); ++i) {
    low = _mm_min_ps(low, keys(few_[i], paired.low()));
    high = _mm_min_ps(high, keys(few_[i], paired.high()));
  }
  return Lanes{_mm_castps_si128(low), _mm_castps_si128(high)} & Lanes::all((1 << kFewBits) - 1);
}

}  // namespace quillhue
