#include "effects/effects.h"

namespace quillhue {

namespace {

class multBrightnessEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value * getValue() / 100;
  }
};

}  // namespace

constinit const EffectDescription kMultBrightnessEffect{"brightness-percent",
                                                        "Brightness (%)",
                                                        "percentage each channel is scaled by",
                                                        {-100, 200},
                                                        100,
                                                        makeEffect<multBrightnessEffect>};

}  // namespace quillhue
