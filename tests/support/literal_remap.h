#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "remap/remap.h"

namespace quillhue {

/// The index of the first entry with the least squared distance to a target of any blue, green and red, by a scan of
/// all. Distances wrap.
std::uint8_t literalNearest(std::span<const PaletteEntry> entries, const std::array<std::int32_t, 3>& target);

/// What remapImage does, by the rules as one would write them down: a scan of the palette for every pixel and one row
/// after the other. Slow; the product has to give the same bytes and to report at the same rows.
bool literalRemap(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                  RemapProgress& progress);

}  // namespace quillhue
