#include <algorithm>

#include "effects/effects.h"

namespace quillhue {

namespace {

class maxEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return std::min(value, getValue());
  }
};

}  // namespace

constinit const EffectDescription kMaxEffect{
    .name = "maximum",
    .label = "Maximum",
    .meaning = "largest value a channel may keep",
    .range = {0, 255},
    .defaultValue = 255,
    .create = makeEffect<maxEffect>,
};

}  // namespace quillhue
