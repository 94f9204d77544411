#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue {

/// Colors as text that people paste into other programs.

/// Returns one color per line, as "#E8B0B0". Lines end with CR LF, except the last.
[[nodiscard]] std::string colorListText(std::span<const PaletteEntry> colors);

/// Parses text of nothing but colors, each of six hexadecimal digits with or without "#". Blanks, tabs, commas,
/// semicolons and line ends separate them. Returns the first kMaxPaletteSize colors, or nothing if the text has no
/// color or contains anything else.
[[nodiscard]] std::optional<std::vector<PaletteEntry>> parseColorList(std::string_view text);

}  // namespace quillhue
