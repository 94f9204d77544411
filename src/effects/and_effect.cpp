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

constinit const EffectDescription kAndEffect{"and",    "Binary AND", "mask ANDed into each channel",
                                             {0, 255}, 255,          makeEffect<andEffect>};

}  // namespace quillhue
