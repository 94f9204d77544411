#pragma once

#include <cstdint>

namespace quillhue {

/// Accumulates wheel movements. Touchpads and high-resolution wheels report a notch in many small parts.
class WheelSum {
 public:
  /// Adds a movement (120 per notch) and returns the number of whole steps completed, with `stepsPerNotch` steps per
  /// notch. A change of direction discards the remainder.
  [[nodiscard]] std::int32_t add(std::int32_t delta, std::int32_t stepsPerNotch = 1) {
    constexpr std::int32_t kNotch = 120;
    if ((delta < 0) != (rest_ < 0)) {
      rest_ = 0;
    }
    rest_ += delta * stepsPerNotch;
    const std::int32_t steps = rest_ / kNotch;
    rest_ -= steps * kNotch;
    return steps;
  }
  /// Discards the remainder, because the wheel now acts on another control.
  void reset() { rest_ = 0; }

 private:
  std::int32_t rest_ = 0;
};

}  // namespace quillhue
