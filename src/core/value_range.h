#pragma once

#include <algorithm>
#include <cstdint>

namespace quillhue {

/// The range of a number, both ends included.
struct ValueRange {
  std::int32_t minimum = 0;
  std::int32_t maximum = 255;

  [[nodiscard]] constexpr bool contains(std::int32_t value) const { return value >= minimum && value <= maximum; }
  /// Returns the nearest value in the range.
  [[nodiscard]] constexpr std::int32_t clamp(std::int64_t value) const {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, minimum, maximum));
  }

  friend bool operator==(const ValueRange&, const ValueRange&) = default;
};

}  // namespace quillhue
