#include "effects/effects.h"

namespace quillhue {

namespace {

// Blends the clipboard's entry k into the k-th selected entry, until either runs out.
class pasteEffect final : public Effect {
 public:
  using Effect::Effect;

  void apply(const EffectInput& input, ChannelMask mask, Palette& output) const override {
    const std::int32_t weight = getValue();
    const auto blend = [weight](std::int32_t over, std::int32_t under) {
      return static_cast<std::uint8_t>((over * weight + (100 - weight) * under) / 100);
    };
    auto next = input.clipboard.begin();
    for (const std::int32_t index : selectedIndexes(input.palette)) {
      if (next == input.clipboard.end()) {
        break;
      }
      const PaletteEntry color = input.palette.entry(index);
      const PaletteEntry mixed{blend(next->red, color.red), blend(next->green, color.green),
                               blend(next->blue, color.blue)};
      output.setEntry(index, withChannels(color, mask, mixed));
      ++next;
    }
  }
};

}  // namespace

constinit const EffectDescription kPasteEffect{
    .name = "paste",
    .label = "Translucent paste",
    .meaning = "weight in percent of the clipboard palette",
    .range = {0, 100},
    .defaultValue = 0,
    .create = makeEffect<pasteEffect>,
    .followsPaletteSize = false,
    .readsClipboard = true,
};

}  // namespace quillhue
