#include "effects/effects.h"

namespace quillhue {

namespace {

class andEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value & getValue();
  }
};

}  // namespace

constinit const EffectDescription kAndEffect{
    .name = "and",
    .label = "Binary AND",
    .meaning = "mask ANDed into each channel",
    .range = {0, 255},
    .defaultValue = 255,
    .create = makeEffect<andEffect>,
};

}  // namespace quillhue
