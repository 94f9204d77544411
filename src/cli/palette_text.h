#pragma once

#include "cli/console.h"
#include "core/palette.h"

namespace quillhue::cli {

/// Shows the entries with their indexes: as blocks of color where the console has colors, and otherwise a line each
/// with the hexadecimal color and the three decimal values.
void showPalette(const Palette& palette, Console& console);

}  // namespace quillhue::cli
