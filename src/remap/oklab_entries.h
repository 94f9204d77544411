#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "core/color_space.h"
#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "remap/eight_colors.h"

namespace quillhue {

/// Finds the entry of a palette that is nearest to a color by Euclidean distance in Oklab. Results are kept in a table
/// of all 2^24 colors, which uses 32 MiB, as far as touched.
class OklabEntries {
 public:
  /// Takes 1 to 256 colors. Throws std::bad_alloc.
  explicit OklabEntries(std::span<const PaletteEntry> colors);

  /// Returns the index of the first of the nearest entries to each target. Channels are limited to 0..255.
  [[nodiscard]] Lanes find(const EightColors& targets);

  /// Gives each pixel (three bytes: blue, green, red) the index of the first of its nearest entries.
  void remapRow(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes);

 private:
  [[nodiscard]] std::uint8_t nearest(const PaletteEntry& color);

  std::vector<Oklab> entries_;
  // The index + 1 of the nearest entry to each color, or 0 if it is not known yet.
  ZeroedMemory<std::uint16_t> found_;
};

}  // namespace quillhue
