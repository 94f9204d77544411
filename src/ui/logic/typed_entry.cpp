#include "ui/logic/typed_entry.h"

#include <cstddef>
#include <utility>

namespace quillhue {

void TypedEntry::add(char digit) {
  constexpr std::size_t kMaxDigits = 4;
  if (digits_.size() < kMaxDigits) {
    digits_ += digit;
  }
}

std::optional<std::int32_t> TypedEntry::finish(std::int32_t paletteSize) {
  const std::string digits = std::exchange(digits_, {});
  if (digits.empty() || std::stoi(digits) >= paletteSize) {
    return std::nullopt;
  }
  return std::stoi(digits);
}

}  // namespace quillhue
