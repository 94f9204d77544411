#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "formats/true_color_bitmap.h"

namespace quillhue {

/// Reduces colors to at most `target` entries (1 .. the palette's size), which are written to `palette` from entry 0
/// on; the others stay as they are. Permutes `words`. The outcome depends on the order that equal keys get from
/// std::sort, which libstdc++ gives alike on all systems.
void medianCut(std::span<ColorWord> words, std::int32_t target, Palette& palette);

}  // namespace quillhue
