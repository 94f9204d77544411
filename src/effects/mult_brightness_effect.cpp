#include "effects/effects.h"

namespace quillhue {

namespace {

class multBrightnessEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value * getValue() / 100;
  }
};

}  // namespace

constinit const EffectDescription kMultBrightnessEffect{
    .name = "brightness-percent",
    .label = "Brightness (%)",
    .meaning = "percentage each channel is scaled by",
    .range = {-100, 200},
    .defaultValue = 100,
    .create = makeEffect<multBrightnessEffect>,
};

}  // namespace quillhue
