#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/value_range.h"

namespace quillhue {

/// What an edit field's text says: digits, with a minus sign before them or not, and blanks around. Nothing for any
/// other text; a number that is too large counts as the largest or least there is.
[[nodiscard]] std::optional<std::int32_t> typedNumber(std::wstring_view text);

/// The number that an arrow of a field leads to from the one that counts.
[[nodiscard]] std::int32_t steppedValue(std::int32_t value, std::int32_t step, const ValueRange& range);

/// The number in a field while it is typed: the nearest one in the range, and `previous` where there is none.
[[nodiscard]] std::int32_t typedValue(std::wstring_view text, const ValueRange& range, std::int32_t previous);

}  // namespace quillhue
