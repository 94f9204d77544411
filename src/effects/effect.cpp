#include "effects/effect.h"

namespace quillhue {

void ChannelEffect::apply(const EffectInput& input, ChannelMask mask, Palette& output) const {
  if ((mask & kAllChannels) == 0) {
    return;
  }
  for (const std::int32_t index : selectedIndexes(input.palette)) {
    const PaletteEntry color = input.palette.entry(index);
    PaletteEntry changed = color;
    for (const Channel channel : kChannels) {
      if (hasChannel(mask, channel)) {
        channelOf(changed, channel) = clampToByte(transform(channelOf(color, channel), color, mask));
      }
    }
    output.setEntry(index, changed);
  }
}

}  // namespace quillhue
