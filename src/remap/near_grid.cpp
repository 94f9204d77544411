#include "remap/near_grid.h"

#include <algorithm>

namespace quillhue {

NearGrid::NearGrid(CandidateLists& lists) : lists_(lists), words_(kCells), blocks_(kBlocks) {}

ColorBox NearGrid::boxOf(std::size_t cell, std::int32_t side) {
  ColorBox box{};
  for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
    box.low[channel] = static_cast<std::int32_t>(cell >> (5 * channel) & 31) * 16 + kLowest[channel];
    box.high[channel] = box.low[channel] + 16 * side - 1;
  }
  return box;
}

Lanes NearGrid::findSlowly(const EightColors& targets, Lanes cells) {
  CandidateLists::Words words{};
  std::ranges::transform(numbersOf(cells), words.begin(),
                         [this](std::int32_t cell) { return listOf(static_cast<std::size_t>(cell)); });
  return lists_.searchOrScan(words, PairedColors(targets << 1), targets);
}

CandidateLists::Word NearGrid::listOf(std::size_t cell) {
  CandidateLists::Word& word = words_.all()[cell];
  if (word == 0) {
    word = lists_.add(lists_.candidates().within(boxOf(cell), candidatesNear(cell)), {});
  }
  return word;
}

std::span<const std::uint8_t> NearGrid::candidatesNear(std::size_t cell) {
  const auto inBlock = [cell](std::size_t channel) { return cell >> (5 * channel + 2) & 7; };
  std::uint32_t& block = blocks_[inBlock(2) << 6 | inBlock(1) << 3 | inBlock(0)];
  if (block == 0) {
    constexpr std::size_t kFirstOfBlock = ~(std::size_t{3} << 10 | std::size_t{3} << 5 | std::size_t{3});
    ColorCandidates& candidates = lists_.candidates();
    block = lists_.keep(candidates.within(boxOf(cell & kFirstOfBlock, kBlockSide), candidates.all()));
  }
  return lists_.kept(block);
}

}  // namespace quillhue
