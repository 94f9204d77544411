#include "colormodes/color_mode.h"

namespace quillhue {

PaletteEntry ColorMode::entryColor() const {
  const PaletteDocument* const document = slot_.document();
  return document != nullptr && document->contains(entryIndex_) ? document->getColor(entryIndex_) : PaletteEntry{};
}

void ColorMode::setEntry(std::int32_t index) {
  entryIndex_ = index;
  values_ = toValues(entryColor());
}

void ColorMode::setValue(Bar bar, std::int32_t value) {
  values_ = currentValues();
  values_[at(bar)] = value;
  for (const Bar other : kBars) {
    if (other != bar) {
      rebuildBar(other);
    }
  }
  if (PaletteDocument* const document = slot_.document()) {
    document->setColor(entryIndex_, toColor(values_));
  }
}

PaletteEntry ColorMode::barColor(Bar bar, std::int32_t position) const {
  const auto [minimum, maximum] = channelRange(bar);
  ChannelValues values = values_;
  values[at(bar)] = minimum + position * (maximum - minimum) / (kBarPositions - 1);
  return toColor(values);
}

void ColorMode::rebuildBar(Bar bar) {
  for (std::int32_t position = 0; position < kBarPositions; ++position) {
    bars_[at(bar)][static_cast<std::size_t>(position)] = barColor(bar, position);
  }
}

void ColorMode::start(std::int32_t entry) {
  setEntry(entry);
  for (const Bar bar : kBars) {
    rebuildBar(bar);
  }
  fixedStrips_ = bars_;
}

}  // namespace quillhue
