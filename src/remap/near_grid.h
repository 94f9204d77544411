#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/zeroed_memory.h"
#include "remap/candidate_lists.h"

namespace quillhue {

/// Finds the nearest colors to targets from -128 to 383 in each channel: to the colors of images and most targets of
/// error diffusion. The space is divided into 32 x 32 x 32 cells. Each cell has a list of the colors that can be the
/// nearest inside it; the list is made when the first target falls into the cell.
class NearGrid {
 public:
  /// `lists` must outlive the grid.
  explicit NearGrid(CandidateLists& lists);

  [[nodiscard]] static bool has(const EightColors& targets) {
    const EightColors fromLow = targets - EightColors::all(kLowest);
    return areZero(unsignedShiftRight(fromLow.blue | fromLow.green | fromLow.red, 9));
  }

  /// Returns the index of the nearest color to each target, the first of equally near ones.
  [[nodiscard, gnu::always_inline]] Lanes find(const EightColors& targets) {
    const Lanes cells = cellsOf(targets);
    const CandidateLists::Word* const words = words_.all().data();
    CandidateLists::Words lists;
    forEachLane([&](auto lane) { lists[lane] = words[lowHalfOf<lane>(cells)]; });
    // The origin of all lists is black.
    const CandidateLists::Common common(lists);
    return common.areLists() ? lists_.search(lists, common, PairedColors(targets << 1)) : findSlowly(targets, cells);
  }

  static constexpr std::size_t kCells = std::size_t{1} << 15;
  [[nodiscard]] static Lanes cellsOf(const EightColors& targets) {
    const EightColors fromLow = targets - EightColors::all(kLowest);
    const Lanes cell = Lanes::all(~15);
    return fromLow.blue >> 4 | (fromLow.green & cell) << 1 | (fromLow.red & cell) << 6;
  }
  [[nodiscard]] static ColorBox boxOf(std::size_t cell) { return boxOf(cell, 1); }

 private:
  static constexpr ColorVector kLowest{-128, -128, -128};
  // A block has 4 x 4 x 4 cells. The candidates of a cell are among those of its block.
  static constexpr std::size_t kBlockSide = 4;
  static constexpr std::size_t kBlocks = kCells / (kBlockSide * kBlockSide * kBlockSide);

  // Returns the box of `side` cells in each direction from `cell` on.
  [[nodiscard]] static ColorBox boxOf(std::size_t cell, std::int32_t side);
  [[gnu::noinline]] Lanes findSlowly(const EightColors& targets, Lanes cells);
  [[nodiscard]] CandidateLists::Word listOf(std::size_t cell);
  [[nodiscard]] std::span<const std::uint8_t> candidatesNear(std::size_t cell);

  CandidateLists& lists_;
  ZeroedMemory<CandidateLists::Word> words_;
  // The kept candidates of blocks.
  std::vector<std::uint32_t> blocks_;
};

}  // namespace quillhue
