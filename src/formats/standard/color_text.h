#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

#include "core/palette_entry.h"

namespace quillhue {

/// Parses a number that consists of decimal digits only. `Number` is unsigned. Returns nothing for other text and for a
/// number too large for `Number`.
template <typename Number>
[[nodiscard]] std::optional<Number> parseDecimal(std::string_view text) {
  Number value = 0;
  const char* const begin = text.data();
  const char* const end = begin + text.size();
  const auto [parsed, error] = std::from_chars(begin, end, value);
  return error == std::errc() && parsed == end ? std::optional(value) : std::nullopt;
}

[[nodiscard]] inline std::optional<std::uint8_t> parseByte(std::string_view text) {
  return parseDecimal<std::uint8_t>(text);
}

/// Parses a line that begins with three such numbers, separated by blanks or tabs. Returns nothing for any other line.
[[nodiscard]] std::optional<PaletteEntry> parseColorLine(std::string_view line);

}  // namespace quillhue
