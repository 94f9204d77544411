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

constinit const EffectDescription kXorEffect{"xor", "Binary XOR",         "mask XORed into each channel", {0, 255},
                                             0,     makeEffect<xorEffect>};

}  // namespace quillhue
