#include "remap/far_grid.h"

#include <algorithm>

namespace quillhue {

namespace {

// A cell's number has five bits for its place in each channel, and then the number of its cube.
constexpr unsigned kPlaceBits = 5;
constexpr std::int32_t kCellsInRow = 1 << kPlaceBits;

constexpr std::int32_t kBlockSide = 4;
constexpr std::size_t kCellsOfBlock = 64;

constexpr std::int32_t kLeastSide = 16;
constexpr std::int32_t sideOfCell(std::size_t cell) { return kLeastSide << (cell >> (3 * kPlaceBits)); }

// Returns the first cell of a block of `side` cells in each direction, a power of two.
constexpr std::size_t firstOfBlock(std::size_t cell, std::int32_t side) {
  const auto inBlock = static_cast<std::size_t>(side - 1);
  return cell & ~(inBlock << (2 * kPlaceBits) | inBlock << kPlaceBits | inBlock);
}

// Returns the number of the block of kBlockSide.
constexpr std::size_t blockOf(std::size_t cell) {
  const auto place = [cell](unsigned channel) { return cell >> (kPlaceBits * channel + 2) & 7; };
  return cell >> (3 * kPlaceBits) << 9 | place(2) << 6 | place(1) << 3 | place(0);
}

bool isShort(std::span<const std::uint8_t> found) { return found.size() <= ColorGroup::kCount; }

}  // namespace

FarGrid::FarGrid(CandidateLists& lists) : lists_(lists), words_(kCells), blocks_(kCells / kCellsOfBlock) {}

ColorBox FarGrid::boxOf(std::size_t cell, std::int32_t cellsInRow) {
  ColorBox box{};
  const std::int32_t side = sideOfCell(cell);
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    const auto place = static_cast<std::int32_t>(cell >> (kPlaceBits * channel) & (kCellsInRow - 1));
    box.low[channel] = (place - kCellsInRow / 2) * side + kMiddle;
    box.high[channel] = box.low[channel] + cellsInRow * side - 1;
  }
  return box;
}

Lanes FarGrid::findSlowly(const EightColors& targets, Distances distances) {
  const Cubes cubes(distances);
  Words words{};
  std::ranges::transform(numbersOf(cellsOf(halvesOf(targets), cubes)), words.begin(),
                         [this](std::int32_t cell) { return listOf(static_cast<std::size_t>(cell)); });
  return lists_.searchOrScan(words, twiceOffsetsOf(targets), targets);
}

CandidateLists::Word FarGrid::listOf(std::size_t cell) {
  Word& word = words_.all()[cell];
  if (word == 0 || word == kDivided) {
    word = findList(cell);
  }
  return word;
}

CandidateLists::Word FarGrid::findList(std::size_t cell) {
  std::uint32_t& block = blocks_[blockOf(cell)];
  if (block == 0) {
    // Few targets are in the first cube: those beside distant ones.
    constexpr std::size_t kMostRare = 64;
    ColorCandidates& candidates = lists_.candidates();
    const auto found = candidates.within(boxOf(firstOfBlock(cell, kBlockSide), kBlockSide), candidates.all());
    const bool isRare = sideOfCell(cell) == kLeastSide && found.size() <= kMostRare;
    if (isRare || (isShort(found) && haveOneOrigin(cell, kBlockSide))) {
      return share(cell, kBlockSide, makeList(found, cell));
    }
    block = lists_.keep(found);
  }
  return findList(cell, lists_.kept(block));
}

// Finds a list for a cell whose block does not share one. The cell's candidates are `among` those of the block.
CandidateLists::Word FarGrid::findList(std::size_t cell, std::span<const std::uint8_t> among) {
  constexpr std::int32_t kSide = kBlockSide / 2;
  if (words_.all()[cell] != kDivided) {
    const auto found = lists_.candidates().within(boxOf(firstOfBlock(cell, kSide), kSide), among);
    if (isShort(found) && haveOneOrigin(cell, kSide)) {
      return share(cell, kSide, makeList(found, cell));
    }
    share(cell, kSide, kDivided);
  }
  return makeList(lists_.candidates().within(boxOf(cell), among), cell);
}

// Gives all cells of a block a word, and returns it.
CandidateLists::Word FarGrid::share(std::size_t cell, std::int32_t side, Word word) {
  const std::size_t first = firstOfBlock(cell, side);
  const auto count = static_cast<std::size_t>(side);
  for (std::size_t red = 0; red < count; ++red) {
    for (std::size_t green = 0; green < count; ++green) {
      std::ranges::fill(words_.all().subspan(first + (red << (2 * kPlaceBits)) + (green << kPlaceBits), count), word);
    }
  }
  return word;
}

bool FarGrid::haveOneOrigin(std::size_t cell, std::int32_t side) { return side * sideOfCell(cell) <= kOriginDistance; }

CandidateLists::Word FarGrid::makeList(std::span<const std::uint8_t> candidates, std::size_t cell) {
  ColorVector origin = boxOf(cell).low;
  for (std::int32_t& number : origin) {
    number = ((number - kMiddle) & -kOriginDistance) + kOriginDistance / 2 + kMiddle;
  }
  return lists_.add(candidates, origin);
}

}  // namespace quillhue
