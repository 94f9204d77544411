#include "effects/effect.h"

namespace quillhue {

void ChannelEffect::apply(const EffectInput& input, ChannelMask mask, Palette& output) const {
  for (const std::int32_t index : selectedIndexes(input.palette)) {
    const PaletteEntry color = input.palette.entry(index);
    PaletteEntry changed = color;
    for (const Channel channel : kChannels) {
      if (contains(mask, channel)) {
        channelOf(changed, channel) = clampToByte(transform(channelOf(color, channel), color, mask));
      }
    }
    output.setEntry(index, changed);
  }
}

}  // namespace quillhue
