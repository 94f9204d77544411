#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/palette_entry.h"

namespace quillhue {

/// Parses exactly six hexadecimal digits, two each for red, green and blue; empty for any other text.
[[nodiscard]] std::optional<PaletteEntry> parseHexColor(std::string_view digits);

/// Returns six lower-case digits.
[[nodiscard]] std::string hexDigitsOf(PaletteEntry color);

/// Returns the color as in a style sheet, with capitals: "#E8B0B0".
[[nodiscard]] std::string hexTextOf(PaletteEntry color);

}  // namespace quillhue
