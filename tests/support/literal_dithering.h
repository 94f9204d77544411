#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/color_space.h"
#include "remap/remap.h"

namespace quillhue {

/// Finds the nearest entry by a scan of the palette.
class LiteralEntries {
 public:
  /// The entries must outlive this object.
  LiteralEntries(std::span<const PaletteEntry> entries, ColorMatch match);
  /// Takes blue, green and red. By Oklab, channels are limited to 0..255.
  [[nodiscard]] std::uint8_t nearest(const std::array<std::int32_t, 3>& target) const;

 private:
  std::span<const PaletteEntry> entries_;
  // Empty for RGB.
  std::vector<Oklab> labs_;
};

/// Returns the indexes that dithering with options gives. It works row by row, with errors or offsets for the whole
/// image and a scan of the palette for every pixel, and is slow.
std::vector<std::uint8_t> literalDithering(const WorkImage& image, std::span<const PaletteEntry> entries,
                                           const RemapOptions& options);

}  // namespace quillhue
