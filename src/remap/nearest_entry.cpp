#include "remap/nearest_entry.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <optional>

namespace quillhue {

namespace {

constexpr std::int32_t kFarthest = 26000;

// Slabs 8 to 15, each 64 wide, make up the cube. On both sides follow slabs that are each twice as wide as the one
// before: below 0 they are 129 to 256 away from it, then 257 to 512 and so on, and above 255 the same mirrored. The
// last ones end at kFarthest.
constexpr std::int32_t kLastSlab = FarCells::kSlabs - 1;

std::int32_t slabOf(std::int32_t number) {
  const std::int32_t mirrored = std::min(number, 255 - number);
  if (mirrored >= -128) {
    return (number + 640) / 64;
  }
  const std::int32_t slab = 15 - static_cast<std::int32_t>(std::bit_width(static_cast<std::uint32_t>(-mirrored - 1)));
  return number < 0 ? slab : kLastSlab - slab;
}

// The least number of a slab.
std::int32_t startOf(std::int32_t slab) {
  if (slab <= 0) {
    return -kFarthest;
  }
  if (slab < 8) {
    return -(256 << (7 - slab));
  }
  return slab <= 16 ? 64 * slab - 640 : 256 + (128 << (slab - 16));
}

// How near a grey is depends on nothing but the sum of the channels. Colors that dithering can't make with greys drive
// targets far off, and this brings them back: a color of the same sum whose channels are as equal as they can be. None
// where distances wrap in between, so that the order of greys is another one.
std::optional<ColorLanes> leveled(ColorLanes target) {
  const auto numbers = numbersOf(target);
  const std::int64_t sum = std::int64_t{numbers[0]} + numbers[1] + numbers[2];
  std::uint32_t distanceToBlack = 0;
  for (const std::int32_t number : numbers) {
    distanceToBlack += static_cast<std::uint32_t>(number) * static_cast<std::uint32_t>(number);
  }
  // Of |t|^2 + 3 g^2 - 2 g (t1 + t2 + t3) for a grey g what comes to |t|^2.
  constexpr std::int64_t kWhite = 255;
  const std::int64_t most = std::abs(std::int64_t{static_cast<std::int32_t>(distanceToBlack)}) + 3 * kWhite * kWhite +
                            2 * kWhite * std::abs(sum);
  if (most > std::numeric_limits<std::int32_t>::max()) {
    return {};
  }
  const auto rest = static_cast<std::int32_t>((sum % 3 + 3) % 3);
  const auto level = static_cast<std::int32_t>((sum - rest) / 3);
  return ColorLanes{_mm_setr_epi32(level + (rest > 0 ? 1 : 0), level + (rest > 1 ? 1 : 0), level, 0)};
}

}  // namespace

ColorBox NearCells::boxOf(std::size_t cell) {
  ColorBox box{};
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    box.low[channel] = static_cast<std::int32_t>(cell >> (5 * channel) & 31) * 16 - 128;
    box.high[channel] = box.low[channel] + 15;
  }
  return box;
}

bool FarCells::has(PackedColor target) {
  const __m128i isBeyond = _mm_or_si128(_mm_cmpgt_epi16(target.lanes, _mm_set1_epi16(kFarthest)),
                                        _mm_cmplt_epi16(target.lanes, _mm_set1_epi16(-kFarthest)));
  return _mm_movemask_epi8(isBeyond) == 0;
}

std::size_t FarCells::cellOf(PackedColor target) {
  const auto bits = static_cast<std::uint64_t>(_mm_cvtsi128_si64(target.lanes));
  std::size_t cell = 0;
  for (const int channel : {2, 1, 0}) {
    cell = cell * kSlabs + static_cast<std::size_t>(slabOf(static_cast<std::int16_t>(bits >> (16 * channel))));
  }
  return cell;
}

ColorBox FarCells::boxOf(std::size_t cell) {
  ColorBox box{};
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    const auto slab = static_cast<std::int32_t>(cell % kSlabs);
    box.low[channel] = startOf(slab);
    box.high[channel] = slab == kLastSlab ? kFarthest : startOf(slab + 1) - 1;
    cell /= kSlabs;
  }
  return box;
}

NearestEntry::NearestEntry(std::span<const PaletteEntry> colors, std::size_t listBytes)
    : colors_(colors.begin(), colors.end()),
      areGreys_(std::ranges::all_of(
          colors, [](const PaletteEntry& color) { return color.red == color.green && color.green == color.blue; })),
      listBytes_(listBytes) {
  if (hasFewColors()) {
    all_ = groupsOf<FewGroup>(colors);
  } else {
    near_ = std::make_unique<CandidateGrid<NearCells>>(colors, listBytes);
  }
}

std::uint8_t NearestEntry::findFar(ColorLanes target) {
  if (allForFar_.empty()) {
    allForFar_ = groupsOf<DistanceGroup>(colors_);
  }
  if (areGreys_ && !hasFewColors()) {
    if (const auto level = leveled(target)) {
      target = *level;
    }
  }
  const PackedColor color = packed(target);
  if (!FarCells::has(color)) {
    return DistanceGroup::nearestWrapping(allForFar_.data(), allForFar_.size(), target);
  }
  if (hasFewColors()) {
    return DistanceGroup::nearest(allForFar_.data(), allForFar_.size(), color);
  }
  if (NearCells::has(color)) {
    return near_->find(color);
  }
  if (!far_) {
    // Lists are short where only the direction counts.
    far_ = std::make_unique<CandidateGrid<FarCells>>(colors_, listBytes_ / 4);
  }
  return far_->find(color);
}

}  // namespace quillhue
