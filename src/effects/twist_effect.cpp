#include <cmath>

#include "effects/effects.h"

namespace quillhue {

namespace {

// Bends values along an S-shaped curve around the middle of the range for exponents below 1, and along an inverse S
// above 1.
class twistEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    const double exponent = getValue() / 100.0;
    const auto bent = [exponent](std::int32_t distance) {
      return static_cast<std::int32_t>(std::pow(distance / 127.0, exponent) * 127.0);
    };
    return value <= 127 ? 127 - bent(127 - value) : 128 + bent(value - 128);
  }
};

}  // namespace

constinit const EffectDescription kTwistEffect{
    .name = "twist",
    .label = "Twist",
    .meaning = "curve exponent x 100",
    .range = {1, 1000},
    .defaultValue = 100,
    .create = makeEffect<twistEffect>,
};

}  // namespace quillhue
