#include <cmath>

#include "effects/effects.h"

namespace quillhue {

namespace {

class gammaEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return static_cast<std::int32_t>(std::pow(value / 255.0, getValue() / 100.0) * 255.0);
  }
};

}  // namespace

constinit const EffectDescription kGammaEffect{
    .name = "gamma",
    .label = "Gamma",
    .meaning = "exponent x 100",
    .range = {1, 1000},
    .defaultValue = 100,
    .create = makeEffect<gammaEffect>,
};

}  // namespace quillhue
