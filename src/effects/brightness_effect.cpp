#include "effects/effects.h"

namespace quillhue {

namespace {

class brightnessEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& /*color*/,
                                       ChannelMask /*mask*/) const override {
    return value + getValue();
  }
};

}  // namespace

constinit const EffectDescription kBrightnessEffect{
    "brightness", "Brightness", "amount added to each channel", {-255, 255}, 0, makeEffect<brightnessEffect>};

}  // namespace quillhue
