#pragma once

#include <array>
#include <cstddef>

namespace quillhue {

/// An array with one element for each value of an enumeration whose values count from 0.
template <typename Enum, typename Value, std::size_t kCount>
struct EnumArray {
  std::array<Value, kCount> values{};

  [[nodiscard]] constexpr Value& operator[](Enum at) { return values[static_cast<std::size_t>(at)]; }
  [[nodiscard]] constexpr const Value& operator[](Enum at) const { return values[static_cast<std::size_t>(at)]; }

  [[nodiscard]] constexpr auto begin() { return values.begin(); }
  [[nodiscard]] constexpr auto begin() const { return values.begin(); }
  [[nodiscard]] constexpr auto end() { return values.end(); }
  [[nodiscard]] constexpr auto end() const { return values.end(); }

  friend constexpr bool operator==(const EnumArray&, const EnumArray&) = default;
};

}  // namespace quillhue
