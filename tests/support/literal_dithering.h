#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "remap/remap.h"

namespace quillhue {

/// The indexes that dithering with options gives, row by row, with errors or offsets for the whole image and a scan of
/// the palette for every pixel. Slow.
std::vector<std::uint8_t> literalDithering(const WorkImage& image, std::span<const PaletteEntry> entries,
                                           const RemapOptions& options);

}  // namespace quillhue
