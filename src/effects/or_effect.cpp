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

constinit const EffectDescription kOrEffect{"or",     "Binary OR", "mask ORed into each channel",
                                            {0, 255}, 0,           makeEffect<orEffect>};

}  // namespace quillhue
