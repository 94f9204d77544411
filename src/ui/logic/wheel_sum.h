#pragma once

#include <cstdint>

namespace quillhue {

/// Adds up the turns of a wheel. Touchpads and fine wheels report a notch in many small parts.
class WheelSum {
 public:
  /// Adds a turn, 120 a notch, and returns the whole steps that it completes, of which a notch has `stepsPerNotch`.
  /// A turn in the other direction starts anew.
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
  /// Forgets what is left of a notch, for a turn over something else.
  void reset() { rest_ = 0; }

 private:
  std::int32_t rest_ = 0;
};

}  // namespace quillhue
