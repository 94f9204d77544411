#include "remap/nearest_entry.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quillhue {

namespace {

Lanes squared(Lanes numbers) {
  const auto four = [](__m128i half) {
    const __m128i odd = _mm_srli_epi64(half, 32);
    const auto lowHalves = [](__m128i products) { return _mm_shuffle_epi32(products, _MM_SHUFFLE(0, 0, 2, 0)); };
    return _mm_unpacklo_epi32(lowHalves(_mm_mul_epu32(half, half)), lowHalves(_mm_mul_epu32(odd, odd)));
  };
  return {four(numbers.low), four(numbers.high)};
}

// Returns -1 - number for negative numbers.
Lanes folded(Lanes number) { return number ^ number >> 31; }

// Returns all bits in the lanes of targets whose squared distances to some colors may wrap more often than to others.
// These distances differ from that to the middle of the colors by |p|^2 - 2 t.p, for a color p and a target t that
// count from there. No channel of p is beyond 128, and flattened targets have the same products.
Lanes mayWrapDifferently(const EightColors& targets, const EightColors& flattened, const EightColors& middle) {
  const auto [blue, green, red] = targets - middle;
  const Lanes toMiddle = squared(blue) + squared(green) + squared(red);
  const EightColors offsets = flattened - middle;
  const Lanes reach = folded(offsets.blue) + folded(offsets.green) + folded(offsets.red) + Lanes::all(3);
  const Lanes mostDifference = Lanes::all(3 * 128 * 128) + (reach << 8);
  return Lanes::all(std::numeric_limits<std::int32_t>::max()) - mostDifference < folded(toMiddle);
}

}  // namespace

NearestEntry::NearestEntry(std::span<const PaletteEntry> colors, std::size_t listBytes)
    : scan_(colors),
      flat_(colors),
      middle_(flat_.flattened(EightColors::all({128, 128, 128}))),
      lists_(scan_, listBytes) {
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
  if (flat_.areFlat() || !areZero(Shorts::all(kNeverWraps) < distances)) {
    return findOrScan(targets);
  }
  return far_->find(targets, distances);
}

Lanes NearestEntry::findOrScan(const EightColors& targets) {
  const EightColors flattened = flat_.flattened(targets);
  const FarGrid::Distances distances = FarGrid::distancesOf(flattened);
  const Lanes mustScan =
      widened(distances == Shorts::all(FarGrid::kBeyond)) | mayWrapDifferently(targets, flattened, middle_);
  if (areZero(mustScan)) {
    return findOrdered(flattened, distances);
  }
  const EightColors ordered = flattened & ~mustScan;
  EightNumbers found = numbersOf(findOrdered(ordered, FarGrid::distancesOf(ordered)));
  const std::array channels{numbersOf(targets.blue), numbersOf(targets.green), numbersOf(targets.red)};
  const EightNumbers areScanned = numbersOf(mustScan);
  for (std::size_t lane = 0; lane < found.size(); ++lane) {
    if (areScanned[lane] != 0) {
      found[lane] = scan_.nearest({channels[0][lane], channels[1][lane], channels[2][lane]});
    }
  }
  return lanesOf(found);
}

Lanes NearestEntry::findOrdered(const EightColors& targets, FarGrid::Distances distances) {
  // Flattened targets may be near.
  return near_ && NearGrid::has(targets) ? near_->find(targets) : far_->find(targets, distances);
}

}  // namespace quillhue
