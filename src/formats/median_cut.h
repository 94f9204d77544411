#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "formats/true_color_bitmap.h"

namespace quillhue {

/// Reduces colors to at most `target` entries (1 .. the palette's size) and writes them to `palette` from entry 0 on;
/// the other entries stay unchanged. Permutes `words`. The result depends on the order in which sortByByte leaves equal
/// keys.
void medianCut(std::span<ColorWord> words, std::int32_t target, Palette& palette);

}  // namespace quillhue
