#include "remap/far_cells.h"

#include <algorithm>

namespace quillhue {

namespace {

struct Slab {
  std::int32_t low;
  std::int32_t high;
  std::int32_t middle;
};

// Slabs of the upper half begin at 128, 192, 256, 384, 512, 768 and so on. The lower half is the upper one mirrored.
Slab slabOf(std::int32_t coordinate) {
  constexpr std::int32_t kHalf = FarCells::kSlabs / 2;
  const bool isMirrored = coordinate < kHalf;
  const std::int32_t place = isMirrored ? kHalf - 1 - coordinate : coordinate - kHalf;
  const auto startOf = [](std::int32_t slab) { return (2 + slab % 2) << (6 + slab / 2); };
  const std::int32_t start = startOf(place);
  const std::int32_t end = startOf(place + 1);
  const std::int32_t middle = (start + end) / 2;
  return isMirrored ? Slab{256 - end + 1, 256 - start, 256 - middle} : Slab{start, end - 1, middle};
}

// Returns the slabs of blue, green and red.
std::array<Slab, 3> slabsOfCell(std::size_t cell) {
  std::array<Slab, 3> slabs{};
  for (Slab& slab : slabs) {
    slab = slabOf(static_cast<std::int32_t>(cell % FarCells::kSlabs));
    cell /= FarCells::kSlabs;
  }
  return slabs;
}

}  // namespace

FarGroup::FarGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list,
                   std::span<const std::int32_t> scores, std::size_t start) {
  for (std::size_t lane = 0; lane < kCount; ++lane) {
    const std::size_t place = start + lane < list.size() ? start + lane : 0;
    const std::int32_t key = scores[place] * static_cast<std::int32_t>(kMostColors) + static_cast<std::int32_t>(place);
    colors_.set(lane, key + (1 << 29), colors[list[place]], list[place]);
  }
}

ColorBox FarCells::boxOf(std::size_t cell) {
  const auto slabs = slabsOfCell(cell);
  return {{slabs[0].low, slabs[1].low, slabs[2].low}, {slabs[0].high, slabs[1].high, slabs[2].high}};
}

void FarCells::appendList(std::vector<FarGroup>& groups, std::span<const PaletteEntry> colors,
                          std::span<const std::uint8_t> list, std::size_t cell) {
  const auto slabs = slabsOfCell(cell);
  std::array<std::int32_t, FarGroup::kMostColors> all{};
  const auto scores = std::span(all).first(list.size());
  std::ranges::transform(list, scores.begin(), [&](std::uint8_t index) {
    const PaletteEntry& color = colors[index];
    return squaredLength(color) -
           2 * (slabs[0].middle * color.blue + slabs[1].middle * color.green + slabs[2].middle * color.red);
  });
  const std::int32_t least = std::ranges::min(scores);
  std::ranges::for_each(scores, [least](std::int32_t& score) { score -= least; });
  for (std::size_t start = 0; start < list.size(); start += FarGroup::kCount) {
    groups.emplace_back(colors, list, scores, start);
  }
}

}  // namespace quillhue
