#include "effects/effects.h"

namespace quillhue {

namespace {

class xorEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value ^ getValue();
  }
};

}  // namespace

constinit const EffectDescription kXorEffect{
    .name = "xor",
    .label = "Binary XOR",
    .meaning = "mask XORed into each channel",
    .range = {0, 255},
    .defaultValue = 0,
    .create = makeEffect<xorEffect>,
};

}  // namespace quillhue
