#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/zeroed_memory.h"
#include "remap/candidate_lists.h"

namespace quillhue {

/// Finds the nearest colors to targets up to 65533 away from the middle of the color cube in each channel. The space is
/// divided into cells that grow with the distance, because only the direction of a distant target matters: a cube of
/// 512 in each direction, and eight larger ones around each other, each twice as large as the one inside it. Each cube
/// has 32 x 32 x 32 cells.
///
/// A cell has a list of the colors that can be the nearest inside it. The list is made when the first target falls into
/// the cell. Blocks of 4 x 4 x 4 or 2 x 2 x 2 cells share a list if it is short.
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

  static constexpr std::size_t kCubes = 9;
  static constexpr std::size_t kCells = kCubes << 15;
  [[nodiscard]] static Lanes cellsOf(const EightColors& targets, Distances distances) {
    return cellsOf(halvesOf(targets), Cubes(distances));
  }
  [[nodiscard]] static ColorBox boxOf(std::size_t cell) { return boxOf(cell, 1); }

 private:
  using Word = CandidateLists::Word;
  using Words = CandidateLists::Words;
  using Halves = std::array<Shorts, 3>;

  // The cubes of targets.
  struct Cubes {
    explicit Cubes(Distances distances);

    // From the smallest one on.
    Shorts numbers;
    // The high half of a product of half a target with this counts the cells from the middle.
    Shorts cellsPerHalf;
  };

  // The word of a cell that does not share a list with the seven around it, until it has its own.
  static constexpr Word kDivided = 2;
  static constexpr std::int32_t kMiddle = 128;
  // All nearer targets are in the first cube too.
  static constexpr std::int16_t kLeastDistance = 64;
  // The origin of a list is the middle of one of the cubes with this side that meet in the middle of the color cube.
  static constexpr std::int16_t kOriginDistance = 4096;

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
  [[nodiscard]] static Lanes cellsOf(const Halves& halves, const Cubes& cubes);
  // Returns twice the targets relative to the origins of their lists.
  [[nodiscard]] static PairedColors twiceOffsetsOf(const EightColors& targets);
  [[nodiscard]] static ColorBox boxOf(std::size_t cell, std::int32_t cellsInRow);

  [[gnu::noinline]] Lanes findSlowly(const EightColors& targets, Distances distances);
  [[nodiscard]] Word listOf(std::size_t cell);
  [[nodiscard]] Word findList(std::size_t cell);
  [[nodiscard]] Word findList(std::size_t cell, std::span<const std::uint8_t> among);
  Word share(std::size_t cell, std::int32_t side, Word word);
  // Returns whether the lists in the block of `side` cells in each direction have the same origin.
  [[nodiscard]] static bool haveOneOrigin(std::size_t cell, std::int32_t side);
  [[nodiscard]] Word makeList(std::span<const std::uint8_t> candidates, std::size_t cell);

  CandidateLists& lists_;
  ZeroedMemory<Word> words_;
  // The kept candidates of blocks of 4 x 4 x 4 cells.
  std::vector<std::uint32_t> blocks_;
};

// The highest bit of a distance decides. Floats have its place as their exponent.
inline FarGrid::Cubes::Cubes(Distances distances) {
  const auto powerOfTwo = [](__m128i four) {
    return _mm_and_si128(_mm_castps_si128(_mm_cvtepi32_ps(four)), _mm_set1_epi32(0x7F800000));
  };
  const auto integers = [](Lanes floats) {
    const auto four = [](__m128i half) { return _mm_cvttps_epi32(_mm_castsi128_ps(half)); };
    return packed({four(floats.low), four(floats.high)});
  };
  const auto exponent = [](int number) { return Lanes::all(number << 23); };
  constexpr int kBias = 127;
  const Lanes numbersInLanes = interleaved(distances, {});
  const Lanes highestBits{powerOfTwo(numbersInLanes.low), powerOfTwo(numbersInLanes.high)};
  // A distance of 64 to 127 belongs to the first cube, which has one cell for each 8.
  numbers = packed((highestBits - exponent(kBias + 6)) >> 23);
  cellsPerHalf = integers(exponent(kBias) + exponent(kBias + 16 - 3 + 6) - highestBits);
}

inline Lanes FarGrid::cellsOf(const Halves& halves, const Cubes& cubes) {
  const auto cells = [&](Shorts half) { return highProducts(half, cubes.cellsPerHalf); };
  constexpr std::int16_t kMiddleCell = 16 << 10 | 16 << 5 | 16;
  const Shorts inCube =
      (cells(halves[2]) << 10) + (cells(halves[1]) << 5) + cells(halves[0]) + Shorts::all(kMiddleCell);
  return unsignedShiftRight(interleaved(inCube << 1, cubes.numbers), 1);
}

inline PairedColors FarGrid::twiceOffsetsOf(const EightColors& targets) {
  const auto twiceOffset = [](Lanes pairs) {
    const Lanes twicePlace = (pairs & widened(Shorts::all(kOriginDistance - 1))) << 1;
    const Lanes side = widened(Shorts::all(kOriginDistance));
    return Lanes{_mm_sub_epi16(twicePlace.low, side.low), _mm_sub_epi16(twicePlace.high, side.high)};
  };
  const PairedColors paired(fromMiddle(targets));
  return {twiceOffset(paired.blueGreen()), twiceOffset(paired.red())};
}

inline Lanes FarGrid::find(const EightColors& targets, Distances distances) {
  const Cubes cubes(distances);
  const EightNumbers cells = numbersOf(cellsOf(halvesOf(targets), cubes));
  const Word* const words = words_.all().data();
  Words lists;
  forEachLane([&](auto lane) { lists[lane] = words[static_cast<std::size_t>(cells[lane])]; });
  const CandidateLists::Common common(lists);
  return common.areLists() ? lists_.search(lists, common, twiceOffsetsOf(targets)) : findSlowly(targets, distances);
}

}  // namespace quillhue
