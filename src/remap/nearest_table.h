#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "remap/color_candidates.h"

namespace quillhue {

/// The nearest of at most 256 colors for each of the 2^24 colors of an image, found when one is first asked for,
/// together with its neighbors. For images that are large enough to make up for the memory: 16 MiB, as far as touched,
/// and at most 1.3 MiB beside it.
class NearestTable {
 public:
  /// Of at least one color. Throws std::bad_alloc.
  explicit NearestTable(std::span<const PaletteEntry> colors);

  /// Gives each pixel, three bytes blue, green and red, the index of the first of its nearest colors.
  void remapRow(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes);

 private:
  [[gnu::noinline]] std::uint8_t resolve(std::size_t address);
  void fill(std::size_t line);
  std::span<const std::uint8_t> candidatesOf(std::size_t cell);

  std::vector<PaletteEntry> colors_;
  ColorCandidates candidates_;
  // Each color's index + 1, where 256 counts as 0, as does what is not found yet.
  ZeroedMemory<std::uint8_t> found_;
  ZeroedMemory<std::uint8_t> isFilled_;
  // Where the list of each cell begins, 0 for none, and the lists: their length - 1 and then the indexes.
  std::vector<std::uint32_t> lists_;
  std::vector<std::uint8_t> listed_;
};

}  // namespace quillhue
