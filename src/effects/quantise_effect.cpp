#include "effects/effects.h"

namespace quillhue {

namespace {

class quantiseEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value * getValue() / 255 * 255 / (getValue() - 1);
  }
};

}  // namespace

constinit const EffectDescription kQuantiseEffect{
    .name = "quantise",
    .label = "Quantise",
    .meaning = "number of levels per channel",
    .range = {2, 256},
    .defaultValue = 256,
    .create = makeEffect<quantiseEffect>,
};

}  // namespace quillhue
