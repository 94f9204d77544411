#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "remap/remap.h"

namespace quillhue {

/// Returns the index of the first entry with the least squared distance to a target of any blue, green and red. Scans
/// all entries. Distances wrap.
std::uint8_t literalNearest(std::span<const PaletteEntry> entries, const std::array<std::int32_t, 3>& target);

/// The reference for remapImage: scans the palette for every pixel, one row after the other. It is slow. The product
/// must give the same bytes and report progress at the same rows.
bool literalRemap(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                  RemapProgress& progress);

}  // namespace quillhue
