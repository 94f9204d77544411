#include "effects/effects.h"

namespace quillhue {

namespace {

class orEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value | getValue();
  }
};

}  // namespace

constinit const EffectDescription kOrEffect{
    .name = "or",
    .label = "Binary OR",
    .meaning = "mask ORed into each channel",
    .range = {0, 255},
    .defaultValue = 0,
    .create = makeEffect<orEffect>,
};

}  // namespace quillhue
