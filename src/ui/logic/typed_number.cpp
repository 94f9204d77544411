#include "ui/logic/typed_number.h"

#include <algorithm>
#include <limits>

namespace quillhue {

std::optional<std::int32_t> typedNumber(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t";
  const auto begin = text.find_first_not_of(kBlanks);
  if (begin == std::wstring_view::npos) {
    return std::nullopt;
  }
  text = text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
  const bool isNegative = text.front() == L'-';
  text.remove_prefix(isNegative ? 1 : 0);
  if (text.empty()) {
    return std::nullopt;
  }
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (const wchar_t digit : text) {
    if (digit < L'0' || digit > L'9') {
      return std::nullopt;
    }
    number = std::min(number * 10 + (digit - L'0'), kMost + 1);
  }
  return static_cast<std::int32_t>(isNegative ? -number : std::min(number, kMost));
}

std::int32_t steppedValue(std::int32_t value, std::int32_t step, const ValueRange& range) {
  return range.clamp(std::int64_t{value} + step);
}

std::int32_t typedValue(std::wstring_view text, const ValueRange& range, std::int32_t previous) {
  return range.clamp(typedNumber(text).value_or(previous));
}

}  // namespace quillhue
