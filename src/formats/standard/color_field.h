#pragma once

#include <bit>
#include <cstdint>

namespace quillhue {

/// The bits of a pixel that hold one channel.
class ColorField {
 public:
  /// `mask` is 0 for a missing channel.
  constexpr explicit ColorField(std::uint32_t mask)
      : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), width_(32 - std::countl_zero(mask) - shift_) {}

  [[nodiscard]] constexpr bool isPresent() const { return mask_ != 0; }

  /// Returns the channel as a byte: its highest eight bits or, if it has fewer, its bits repeated. Returns 0 for a
  /// missing channel.
  [[nodiscard]] constexpr std::uint8_t valueIn(std::uint32_t pixel) const {
    const std::uint32_t value = (pixel & mask_) >> shift_;
    std::uint32_t byte = 0;
    for (int left = 8 - width_; isPresent() && left > -width_; left -= width_) {
      byte |= left < 0 ? value >> -left : value << left;
    }
    return static_cast<std::uint8_t>(byte);
  }

 private:
  std::uint32_t mask_;
  int shift_;
  int width_;
};

}  // namespace quillhue
