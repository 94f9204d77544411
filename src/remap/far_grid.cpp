#include "remap/far_grid.h"

#include <algorithm>
#include <bit>

namespace quillhue {

namespace {

// A cube of cells. It reaches from -side * cellsInRow / 2 to the same above the middle.
struct Cube {
  std::int32_t side;
  std::int32_t cellsInRow;
  std::int32_t firstCell;
};

constexpr Cube cubeOf(std::int32_t level) {
  constexpr std::int32_t kSmallCubes = 7;
  const std::int32_t above = std::max(level - (kSmallCubes - 1), 0);
  const std::int32_t firstCell = std::min(level, kSmallCubes) * 512 + (above == 2 ? 4096 : 0);
  return {64 << std::min(level, kSmallCubes - 1), 8 << above, firstCell};
}

constexpr std::int32_t kLevels = 9;

// The reach of the first cube, in halves.
constexpr std::int32_t kLeastReach = 128;

// The numbers of FarGrid::Cubes for one cube.
struct CubeNumbers {
  std::int16_t outside;
  std::int16_t outer;
  std::int16_t partsPerHalf;
  std::int16_t cellsInRow;
  std::int16_t middleCell;
  std::int16_t inCell;
  std::int16_t halfCell;
};

constexpr std::array<CubeNumbers, kLevels> kCubes = [] {
  const auto number = [](std::int32_t value) { return static_cast<std::int16_t>(value); };
  std::array<CubeNumbers, kLevels> cubes{};
  for (std::int32_t level = 0; level < kLevels; ++level) {
    const Cube cube = cubeOf(level);
    const std::int32_t row = cube.cellsInRow;
    cubes[static_cast<std::size_t>(level)] = {number(~((kLeastReach << level) - 1)),
                                              number((kLeastReach / 2) << level),
                                              number((1 << 16) / (cube.side / 8)),
                                              number(row),
                                              number(cube.firstCell + row / 2 * (row * row + row + 1)),
                                              number(cube.side - 1),
                                              number(cube.side / 2)};
  }
  return cubes;
}();

std::int32_t levelOf(std::size_t cell) {
  std::int32_t level = 0;
  while (level + 1 < kLevels && cubeOf(level + 1).firstCell <= static_cast<std::int32_t>(cell)) {
    ++level;
  }
  return level;
}

}  // namespace

FarGrid::FarGrid(CandidateLists& lists) : lists_(lists), cubes_{}, cells_(kCells) {
  parts_.reserve(kMostParts);
  parts_ = {0, CandidateLists::kNone};
  chooseCubes({});
}

void FarGrid::chooseCubes(Distances distances) {
  const auto distance = std::bit_cast<std::array<std::uint16_t, Lanes::kCount>>(distances);
  const auto cubeAt = [&](std::size_t lane) -> const CubeNumbers& {
    return kCubes[static_cast<std::size_t>(std::bit_width(static_cast<unsigned>(distance[lane] / kLeastReach)))];
  };
  const std::array<const CubeNumbers*, Lanes::kCount> cubes{&cubeAt(0), &cubeAt(1), &cubeAt(2), &cubeAt(3),
                                                            &cubeAt(4), &cubeAt(5), &cubeAt(6), &cubeAt(7)};
  const auto shorts = [&](std::int16_t CubeNumbers::* number) {
    std::array<std::int16_t, Lanes::kCount> all;
    std::ranges::transform(cubes, all.begin(), [number](const CubeNumbers* cube) { return cube->*number; });
    return std::bit_cast<Shorts>(all);
  };
  cubes_ = {shorts(&CubeNumbers::outside),          shorts(&CubeNumbers::outer),
            shorts(&CubeNumbers::partsPerHalf),     shorts(&CubeNumbers::cellsInRow),
            shorts(&CubeNumbers::middleCell),       widened(shorts(&CubeNumbers::inCell)),
            widened(shorts(&CubeNumbers::halfCell))};
}

ColorBox FarGrid::boxOf(std::size_t cell) {
  const Cube cube = cubeOf(levelOf(cell));
  ColorBox box{};
  std::int32_t rest = static_cast<std::int32_t>(cell) - cube.firstCell;
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    box.low[channel] = (rest % cube.cellsInRow - cube.cellsInRow / 2) * cube.side + kMiddle;
    box.high[channel] = box.low[channel] + cube.side - 1;
    rest /= cube.cellsInRow;
  }
  return box;
}

ColorBox FarGrid::boxOf(std::size_t cell, std::size_t part) {
  ColorBox box = boxOf(cell);
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    const std::int32_t side = (box.high[channel] - box.low[channel] + 1) / 4;
    box.low[channel] += static_cast<std::int32_t>(part >> (2 * channel) & 3) * side;
    box.high[channel] = box.low[channel] + side - 1;
  }
  return box;
}

Lanes FarGrid::findSlowly(const EightColors& targets, Places places) {
  using Numbers = std::array<std::uint16_t, Lanes::kCount>;
  const auto cells = std::bit_cast<Numbers>(places.cells);
  const auto parts = std::bit_cast<Numbers>(places.parts);
  Words words{};
  std::ranges::transform(cells, parts, words.begin(),
                         [this](std::size_t cell, std::size_t part) { return listOf(cell, part); });
  return lists_.searchOrScan(words, twiceOffsetsOf(targets), targets);
}

CandidateLists::Word FarGrid::listOf(std::size_t cell, std::size_t part) {
  Cell& parts = cells_[cell];
  if (parts.first == 0) {
    parts = makeCell(cell);
  }
  Word& list = parts_[parts.first + (part & parts.last)];
  if (list == 0) {
    const std::span<const std::uint8_t> candidates = lists_.kept(parts_[parts.first - std::size_t{1}]);
    const auto found = lists_.candidates().within(boxOf(cell, part), candidates);
    list = found.size() <= kMostColors ? makeList(found, cell) : sharedList(parts, candidates, cell);
  }
  return list;
}

CandidateLists::Word FarGrid::sharedList(Cell parts, std::span<const std::uint8_t> candidates, std::size_t cell) {
  Word& shared = parts_[parts.first - std::size_t{2}];
  if (shared == 0) {
    shared = makeList(candidates, cell);
  }
  return shared;
}

FarGrid::Cell FarGrid::makeCell(std::size_t cell) {
  if (parts_.size() + 2 + kPartsOfCell > kMostParts) {
    return {kNoList, 0};
  }
  ColorCandidates& candidates = lists_.candidates();
  const auto found = candidates.within(boxOf(cell), candidates.all());
  // Few targets are so near: those beside distant ones.
  const std::size_t most = levelOf(cell) == 0 ? kMostColors : ColorGroup::kCount;
  if (found.size() <= most) {
    parts_.push_back(makeList(found, cell));
    return {static_cast<std::uint16_t>(parts_.size() - 1), 0};
  }
  parts_.push_back(0);
  parts_.push_back(lists_.keep(found));
  const auto first = static_cast<std::uint16_t>(parts_.size());
  parts_.resize(parts_.size() + kPartsOfCell);
  return {first, kPartsOfCell - 1};
}

CandidateLists::Word FarGrid::makeList(std::span<const std::uint8_t> candidates, std::size_t cell) {
  const ColorBox box = boxOf(cell);
  ColorVector middle{};
  std::ranges::transform(box.low, box.high, middle.begin(),
                         [](std::int32_t low, std::int32_t high) { return (low + high + 1) / 2; });
  return lists_.add(candidates, middle);
}

}  // namespace quillhue
