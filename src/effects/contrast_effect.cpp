#include "effects/effects.h"

namespace quillhue {

namespace {

// kept on purpose: 127, not 128, is the value that never changes.
constexpr std::int32_t kPivot = 127;

class contrastEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return (value - kPivot) * getValue() / 100 + kPivot;
  }
};

}  // namespace

constinit const EffectDescription kContrastEffect{
    .name = "contrast",
    .label = "Contrast",
    .meaning = "contrast in percent around 127",
    .range = {-100, 200},
    .defaultValue = 100,
    .create = makeEffect<contrastEffect>,
};

}  // namespace quillhue
