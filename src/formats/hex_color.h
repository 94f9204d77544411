#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/palette_entry.h"

namespace quillhue {

/// The color of exactly six hexadecimal digits, two each for red, green and blue; nothing for any other text.
[[nodiscard]] std::optional<PaletteEntry> parseHexColor(std::string_view digits);

/// Six lower-case digits.
[[nodiscard]] std::string hexDigitsOf(PaletteEntry color);

}  // namespace quillhue
