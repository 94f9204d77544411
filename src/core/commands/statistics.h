#pragma once

#include <cstddef>

#include "core/document.h"
#include "core/services.h"

namespace quillhue {

/// Numbers of different colors.
struct ColorCount {
  std::size_t palette = 0;
  std::size_t selection = 0;
};

[[nodiscard]] ColorCount countColors(const PaletteDocument& document);
/// Tells the count, that of the selection too if anything is selected.
void reportColorCount(const PaletteDocument& document, Messages& messages);

/// The mean of each channel over all entries, truncated.
[[nodiscard]] PaletteEntry averageColor(const PaletteDocument& document);
void reportAverageColor(const PaletteDocument& document, Messages& messages);

}  // namespace quillhue
