#pragma once

#include <string>

#include "cli/console.h"
#include "core/palette.h"

namespace quillhue::cli {

/// Returns "#RRGGBB".
[[nodiscard]] std::string hexOf(PaletteEntry color);

/// Prints the entries with their indexes: as colored blocks if the console has colors, otherwise one line each with the
/// hexadecimal color and the three decimal values.
void showPalette(const Palette& palette, Console& console);

}  // namespace quillhue::cli
