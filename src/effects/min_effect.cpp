#include <algorithm>

#include "effects/effects.h"

namespace quillhue {

namespace {

class minEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return std::max(value, getValue());
  }
};

}  // namespace

constinit const EffectDescription kMinEffect{
    .name = "minimum",
    .label = "Minimum",
    .meaning = "smallest value a channel may keep",
    .range = {0, 255},
    .defaultValue = 0,
    .create = makeEffect<minEffect>,
};

}  // namespace quillhue
