#include "remap/nearest_entry.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

// Returns all bits in the lanes of targets whose squared distances |t|^2 + |p|^2 - 2 t.p to some colors may wrap more
// often than to others. Holds for numbers up to 2^16; kMargin covers the rounding errors of floats.
Lanes mayWrapDifferently(const EightColors& targets) {
  const auto four = [](__m128i blue, __m128i green, __m128i red) {
    const __m128 sign = _mm_set1_ps(-0.0F);
    __m128 squares = _mm_setzero_ps();
    __m128 reach = _mm_setzero_ps();
    for (const __m128i channel : {blue, green, red}) {
      const __m128 numbers = _mm_cvtepi32_ps(channel);
      squares = _mm_add_ps(squares, _mm_mul_ps(numbers, numbers));
      reach = _mm_add_ps(reach, _mm_andnot_ps(sign, numbers));
    }
    // Counts in multiples of 2^32.
    constexpr float kTurn = 0x1p-32F;
    constexpr float kMargin = 1e-4F;
    const __m128 turns = _mm_mul_ps(squares, _mm_set1_ps(kTurn));
    const __m128 rest = _mm_andnot_ps(sign, _mm_sub_ps(turns, _mm_cvtepi32_ps(_mm_cvtps_epi32(turns))));
    const __m128 most = _mm_add_ps(rest, _mm_mul_ps(reach, _mm_set1_ps(2 * 255 * kTurn)));
    return _mm_castps_si128(_mm_cmpge_ps(most, _mm_set1_ps(0.5F - kMargin)));
  };
  return {four(targets.blue.low, targets.green.low, targets.red.low),
          four(targets.blue.high, targets.green.high, targets.red.high)};
}

}  // namespace

NearestEntry::NearestEntry(std::span<const PaletteEntry> colors, std::size_t listBytes)
    : scan_(colors), flat_(colors), lists_(scan_, listBytes) {
  if (hasFewColors()) {
    for (std::size_t i = 0; i < colors.size(); ++i) {
      const ColorVector factor{colors[i].blue << (kFewBits + 1), colors[i].green << (kFewBits + 1),
                               colors[i].red << (kFewBits + 1)};
      few_.push_back({_mm_set1_epi32(keyStart<kFewBits>(colors[i], static_cast<std::uint8_t>(i))),
                      PairedColors(EightColors::all(factor)).low()});
    }
  } else {
    near_ = std::make_unique<NearGrid>(lists_);
  }
}

Lanes NearestEntry::findFar(const EightColors& targets) {
  if (!far_) {
    far_ = std::make_unique<FarGrid>(lists_);
  }
  // Below half this distance from the middle of the cube no squared distance reaches 2^31.
  constexpr std::int16_t kNeverWraps = 13000;
  const FarGrid::Distances distances = FarGrid::distancesOf(targets);
  const bool areOrdered = areZero(Shorts::all(kNeverWraps) < distances);
  return areOrdered ? findOrdered(targets, distances) : findFarther(targets, distances);
}

Lanes NearestEntry::findFarther(const EightColors& targets, FarGrid::Distances distances) {
  const Lanes mustScan = widened(distances == Shorts::all(FarGrid::kBeyond)) | mayWrapDifferently(targets);
  if (areZero(mustScan)) {
    return findOrdered(targets, distances);
  }
  const std::array channels{numbersOf(targets.blue), numbersOf(targets.green), numbersOf(targets.red)};
  const EightNumbers areScanned = numbersOf(mustScan);
  const EightColors ordered = targets & ~mustScan;
  EightNumbers found = numbersOf(findOrdered(ordered, FarGrid::distancesOf(ordered)));
  for (std::size_t lane = 0; lane < found.size(); ++lane) {
    if (areScanned[lane] != 0) {
      found[lane] = scan_.nearest({channels[0][lane], channels[1][lane], channels[2][lane]});
    }
  }
  return lanesOf(found);
}

Lanes NearestEntry::findOrdered(const EightColors& targets, FarGrid::Distances distances) {
  if (!flat_.areFlat() || hasFewColors()) {
    return far_->find(targets, distances);
  }
  const EightColors flattened = flat_.flattened(targets);
  return NearGrid::has(flattened) ? near_->find(flattened) : far_->find(flattened, FarGrid::distancesOf(flattened));
}

}  // namespace quillhue
