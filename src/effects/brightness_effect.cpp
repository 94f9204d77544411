#include "effects/effects.h"

namespace quillhue {

namespace {

class brightnessEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value + getValue();
  }
};

}  // namespace

constinit const EffectDescription kBrightnessEffect{
    .name = "brightness",
    .label = "Brightness",
    .meaning = "amount added to each channel",
    .range = {-255, 255},
    .defaultValue = 0,
    .create = makeEffect<brightnessEffect>,
};

}  // namespace quillhue
