#include "effects/effects.h"

namespace quillhue {

namespace {

// Interpolates between the entry's grey (the mean of all its channels) and its color, or extrapolates beyond them.
class colorEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& color,
                                       ChannelMask /*mask*/) const override {
    return ((100 - getValue()) * channelSum(color, kAllChannels) + 3 * getValue() * value) / 300;
  }
};

}  // namespace

constinit const EffectDescription kColorEffect{
    .name = "color",
    .label = "Color",
    .meaning = "saturation in percent (0 = grey, 100 = unchanged)",
    .range = {-100, 200},
    .defaultValue = 100,
    .create = makeEffect<colorEffect>,
};

}  // namespace quillhue
