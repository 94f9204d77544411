#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "remap/candidate_lists.h"

namespace quillhue {

/// Finds the nearest colors to targets up to 65533 away from the middle of the color cube in each channel. The space is
/// divided into cells that grow with the distance, because only the direction of a distant target matters: a cube of
/// 512 in each direction, and eight larger ones around each other, each twice as large as the one inside it. Each cube
/// has 8 x 8 x 8 cells, the outermost ones have 16 x 16 x 16 and 32 x 32 x 32, so that no cell is larger than 4096.
///
/// A cell has a list of the colors that can be the nearest inside it. If there are many, because errors grow in a
/// direction in which the palette is flat, the cell is divided into 4 x 4 x 4 parts with lists.
class FarGrid {
 public:
  /// `lists` must outlive the grid.
  explicit FarGrid(CandidateLists& lists);

  /// Half the distances of targets from the middle of the color cube, in the channel where it is greatest.
  using Distances = Shorts;
  [[nodiscard]] static Distances distancesOf(const EightColors& targets) { return distancesOf(halvesOf(targets)); }
  /// A target at this distance may be outside the grid.
  static constexpr std::int16_t kBeyond = 0x7FFF;

  /// Returns the index of the nearest color to each target, the first of equally near ones.
  [[nodiscard, gnu::always_inline]] Lanes find(const EightColors& targets, Distances distances);

  static constexpr std::size_t kCells = 7 * 8 * 8 * 8 + 16 * 16 * 16 + 32 * 32 * 32;
  /// Cells, and parts of them.
  struct Places {
    Shorts cells;
    Shorts parts;
  };
  [[nodiscard, gnu::always_inline]] Places placesOf(const EightColors& targets, Distances distances);
  [[nodiscard]] static ColorBox boxOf(std::size_t cell);
  [[nodiscard]] static ColorBox boxOf(std::size_t cell, std::size_t part);

 private:
  using Word = CandidateLists::Word;
  using Words = CandidateLists::Words;
  // The parts of a cell: the index of the first one in parts_, and the number of the last one, which is 0 for a cell
  // that is not divided.
  struct Cell {
    std::uint16_t first;
    std::uint16_t last;
  };
  // For each lane, the cube in which targets are placed. It is kept from one search to the next, because targets of a
  // lane are often about equally far.
  struct Cubes {
    // The bits of distances that no target in the cube has.
    Shorts outside;
    // Bits of which the distance has at least one, unless the cube is much too large.
    Shorts outer;
    // The high half of a product of half a target with this counts the parts of cells from the middle.
    Shorts partsPerHalf;
    Shorts cellsInRow;
    Shorts middleCell;
    // The bits of a place in a cell, and half the side of a cell, each in both halves of the number.
    Lanes inCell;
    Lanes halfCell;
  };
  using Halves = std::array<Shorts, 3>;

  static constexpr std::int32_t kMiddle = 128;
  static constexpr std::size_t kPartsOfCell = 64;
  static constexpr std::size_t kMostParts = std::size_t{1} << 16;
  // The first part of a cell for which there is no memory.
  static constexpr std::uint16_t kNoList = 1;
  // Parts with more colors share the list of their cell.
  static constexpr std::size_t kMostColors = 64;

  [[nodiscard]] static EightColors fromMiddle(const EightColors& targets) {
    return targets - EightColors::all({kMiddle, kMiddle, kMiddle});
  }
  [[nodiscard]] static Halves halvesOf(const EightColors& targets) {
    const EightColors halves = fromMiddle(targets) >> 1;
    return {packed(halves.blue), packed(halves.green), packed(halves.red)};
  }
  [[nodiscard]] static Distances distancesOf(const Halves& halves) {
    const auto folded = [](Shorts half) { return half ^ half >> 15; };
    return greaterOf(greaterOf(folded(halves[0]), folded(halves[1])),
                     greaterOf(folded(halves[2]), Shorts::all(kLeastDistance)));
  }
  // Each cube has a bit of this or a greater one.
  static constexpr std::int16_t kLeastDistance = 64;

  [[nodiscard]] bool fit(Distances distances) const {
    return areZero((distances & cubes_.outside) | ((distances & cubes_.outer) == Shorts{}));
  }
  [[gnu::noinline]] void chooseCubes(Distances distances);
  [[nodiscard]] PairedColors twiceOffsetsOf(const EightColors& targets) const;
  [[gnu::noinline]] Lanes findSlowly(const EightColors& targets, Places places);
  [[nodiscard]] Word listOf(std::size_t cell, std::size_t part);
  [[nodiscard]] Word sharedList(Cell parts, std::span<const std::uint8_t> candidates, std::size_t cell);
  [[nodiscard]] Cell makeCell(std::size_t cell);
  [[nodiscard]] Word makeList(std::span<const std::uint8_t> candidates, std::size_t cell);

  CandidateLists& lists_;
  Cubes cubes_;
  std::vector<Cell> cells_;
  // 0, kNone, then one list of each cell or 64 lists of its parts. Before the 64, a list for all parts with many
  // colors, and an index in divided_.
  std::vector<Word> parts_;
};

inline FarGrid::Places FarGrid::placesOf(const EightColors& targets, Distances distances) {
  if (!fit(distances)) {
    chooseCubes(distances);
  }
  const Halves halves = halvesOf(targets);
  const Shorts blue = highProducts(halves[0], cubes_.partsPerHalf);
  const Shorts green = highProducts(halves[1], cubes_.partsPerHalf);
  const Shorts red = highProducts(halves[2], cubes_.partsPerHalf);
  const Shorts row = lowProducts(red >> 2, cubes_.cellsInRow) + (green >> 2);
  const Shorts inPart = Shorts::all(3);
  return {lowProducts(row, cubes_.cellsInRow) + (blue >> 2) + cubes_.middleCell,
          (blue & inPart) | (green & inPart) << 2 | (red & inPart) << 4};
}

inline PairedColors FarGrid::twiceOffsetsOf(const EightColors& targets) const {
  const auto twiceOffset = [this](Lanes pairs) {
    const Lanes place = pairs & cubes_.inCell;
    const auto four = [](__m128i numbers, __m128i half) { return _mm_slli_epi16(_mm_sub_epi16(numbers, half), 1); };
    return Lanes{four(place.low, cubes_.halfCell.low), four(place.high, cubes_.halfCell.high)};
  };
  const PairedColors paired(fromMiddle(targets));
  return {twiceOffset(paired.blueGreen()), twiceOffset(paired.red())};
}

inline Lanes FarGrid::find(const EightColors& targets, Distances distances) {
  const Places places = placesOf(targets, distances);
  const Cell* const cells = cells_.data();
  const Word* const parts = parts_.data();
  Words lists;
  forEachLane([&](auto lane) {
    const Cell& cell = cells[numberOf<lane>(places.cells)];
    lists[lane] = parts[cell.first + (numberOf<lane>(places.parts) & cell.last)];
  });
  const CandidateLists::Common common(lists);
  return common.areLists() ? lists_.search(lists, common, twiceOffsetsOf(targets)) : findSlowly(targets, places);
}

}  // namespace quillhue
