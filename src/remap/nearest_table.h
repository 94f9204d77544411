#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "remap/color_candidates.h"

namespace quillhue {

/// Finds the nearest of at most 256 colors for each color of an image. The results are kept in a table of all 2^24
/// colors; a color is looked up together with its neighbors when it is first requested. The table pays off for large
/// images only: it uses 16 MiB, as far as touched, and at most 1.3 MiB for lists.
class NearestTable {
 public:
  /// Takes at least one color. Throws std::bad_alloc.
  explicit NearestTable(std::span<const PaletteEntry> colors);

  /// Gives each pixel (three bytes: blue, green, red) the index of the first of its nearest colors.
  void remapRow(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes);

  /// Returns false when most pixels so far had new colors: filling the table for them takes longer than searching.
  [[nodiscard]] bool paysOff() const { return filledLines_ <= kLinesInAdvance + pixels_ / 2; }

 private:
  static constexpr std::int64_t kLinesInAdvance = std::int64_t{1} << 15;

  [[gnu::noinline]] std::uint8_t resolve(std::size_t address);
  void fill(std::size_t line);
  std::span<const std::uint8_t> candidatesOf(std::size_t cell);

  std::vector<PaletteEntry> colors_;
  ColorCandidates candidates_;
  // The index + 1 of the nearest color for each image color. 256 is stored as 0, which also means not found yet.
  ZeroedMemory<std::uint8_t> found_;
  ZeroedMemory<std::uint8_t> isFilled_;
  std::int64_t pixels_ = 0;
  std::int64_t filledLines_ = 0;
  // The offset of each cell's list (0 for none), and the lists: their length - 1, then the indexes.
  std::vector<std::uint32_t> lists_;
  std::vector<std::uint8_t> listed_;
};

}  // namespace quillhue
