#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/value_range.h"

namespace quillhue {

/// Parses an edit field's text: digits with an optional minus sign, between optional blanks. Returns nothing for any
/// other text. Clamps numbers outside the 32-bit range.
[[nodiscard]] std::optional<std::int32_t> typedNumber(std::wstring_view text);

/// Returns the number after a step of a field's arrows, clamped to the range.
[[nodiscard]] std::int32_t steppedValue(std::int32_t value, std::int32_t step, const ValueRange& range);

/// Returns the typed number, or `previous` if the text is not a number, clamped to the range.
[[nodiscard]] std::int32_t typedValue(std::wstring_view text, const ValueRange& range, std::int32_t previous);

}  // namespace quillhue
