#pragma once

#include <string>
#include <string_view>

#include "cli/console.h"
#include "core/palette_entry.h"

namespace quillhue::cli {

/// Returns the colors of a terminal by the environment variables TERM and COLORTERM.
[[nodiscard]] TerminalColors terminalColorsOf(std::string_view term, std::string_view colorTerm);

/// Returns the index of the nearest color in the fixed part of the usual 256 colors: a cube of 6 by 6 by 6 from index
/// 16 on, and 24 grays from index 232 on.
[[nodiscard]] int indexedColorOf(PaletteEntry color);

/// Returns the control sequence that sets the background and a readable text color. `colors` must not be none.
[[nodiscard]] std::string colorSequence(PaletteEntry color, TerminalColors colors);

}  // namespace quillhue::cli
