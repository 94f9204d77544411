#include <algorithm>
#include <bit>

#include "effects/effects.h"

namespace quillhue {

namespace {

// Inverts the entries whose mean over the channels in the mask is above a threshold. A threshold below 128 also raises
// all other entries.
class negativeEffect final : public ChannelEffect {
 public:
  using ChannelEffect::ChannelEffect;

 private:
  [[nodiscard]] std::int32_t transform(std::int32_t value, const PaletteEntry& color, ChannelMask mask) const override {
    const std::int32_t threshold = getValue();
    const bool isAbove = channelSum(color, mask) / std::popcount(mask & kAllChannels) > threshold;
    if (threshold <= 127) {
      return isAbove ? 255 - value : value + 255 - 2 * threshold;
    }
    return isAbove ? 2 * threshold - value : value;
  }
};

}  // namespace

// kept on purpose: the default changes nothing; 0 is the plain negative.
constinit const EffectDescription kNegativeEffect{
    .name = "negative",
    .label = "Negative",
    .meaning = "inversion threshold",
    .range = {0, 255},
    .defaultValue = 255,
    .create = makeEffect<negativeEffect>,
};

}  // namespace quillhue
