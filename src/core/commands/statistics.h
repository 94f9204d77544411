#pragma once

#include <cstddef>

#include "core/document.h"
#include "core/services.h"

namespace quillhue {

/// Numbers of distinct colors.
struct ColorCount {
  std::size_t palette = 0;
  std::size_t selection = 0;
};

[[nodiscard]] ColorCount countColors(const PaletteDocument& document);
/// Shows the number for the palette and, if anything is selected, for the selection.
void reportColorCount(const PaletteDocument& document, Messages& messages);

/// Returns the mean of each channel over all entries, truncated.
[[nodiscard]] PaletteEntry averageColor(const PaletteDocument& document);
void reportAverageColor(const PaletteDocument& document, Messages& messages);

}  // namespace quillhue
