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

constinit const EffectDescription kMinEffect{"minimum", "Minimum", "smallest value a channel may keep",
                                             {0, 255},  0,         makeEffect<minEffect>};

}  // namespace quillhue
