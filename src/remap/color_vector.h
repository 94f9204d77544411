#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quillhue {

/// Blue, green and red, or errors of them. Sums and products wrap modulo 2^32 as two's complement does.
using ColorVector = std::array<std::int32_t, 3>;

[[nodiscard]] constexpr std::int32_t wrappingSum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t wrappingProduct(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

/// `factor` sixteenths of each channel, rounded down.
[[nodiscard]] constexpr ColorVector sixteenths(const ColorVector& color, std::int32_t factor) {
  ColorVector share{};
  for (std::size_t channel = 0; channel < share.size(); ++channel) {
    share[channel] = wrappingProduct(color[channel], factor) >> 4;
  }
  return share;
}

constexpr void add(ColorVector& color, const ColorVector& other) {
  for (std::size_t channel = 0; channel < color.size(); ++channel) {
    color[channel] = wrappingSum(color[channel], other[channel]);
  }
}

}  // namespace quillhue
