#include "effects/effects.h"

namespace quillhue {

namespace {

// Moves colors along the selected entries, toward higher indexes for a positive value.
class rotateEffect final : public Effect {
 public:
  using Effect::Effect;

  void apply(const EffectInput& input, ChannelMask mask, Palette& output) const override {
    const std::vector<PaletteEntry> colors = selectedColors(input.palette);
    if (colors.size() < 2) {
      return;
    }
    const auto count = static_cast<std::int32_t>(colors.size());
    std::int32_t source = getValue() < 0 ? -getValue() : count - getValue() % count;
    for (const std::int32_t index : selectedIndexes(input.palette)) {
      const PaletteEntry& moved = colors[static_cast<std::size_t>(source++ % count)];
      output.setEntry(index, withChannels(input.palette.entry(index), mask, moved));
    }
  }
};

}  // namespace

constinit const EffectDescription kRotateEffect{
    .name = "rotate",
    .label = "Rotate",
    .meaning = "places to move colors along the selection",
    .range = {},
    .defaultValue = 0,
    .create = makeEffect<rotateEffect>,
    .followsPaletteSize = true,
};

}  // namespace quillhue
