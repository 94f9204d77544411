#include "core/commands/colors.h"

#include <cmath>
#include <utility>

namespace quillhue {

namespace {

// `mix(a, b, k, n)` returns the channel value at step k of n between a and b.
template <typename Mix>
void applyGradient(PaletteDocument& document, ChannelMask mask, Mix mix) {
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  const auto n = static_cast<std::int32_t>(indexes.size()) - 1;
  if (n < 1) {
    return;
  }
  const PaletteEntry start = document.getColor(indexes.front());
  const PaletteEntry end = document.getColor(indexes.back());
  document.recordColors();
  for (std::int32_t k = 0; k <= n; ++k) {
    const std::int32_t index = indexes[static_cast<std::size_t>(k)];
    const PaletteEntry mixed{mix(start.red, end.red, k, n), mix(start.green, end.green, k, n),
                             mix(start.blue, end.blue, k, n)};
    document.setColor(index, withChannels(document.getColor(index), mask, mixed));
  }
}

}  // namespace

void swapChannels(PaletteDocument& document, Channel one, Channel other) {
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  document.recordColors();
  for (const std::int32_t index : indexes) {
    PaletteEntry color = document.getColor(index);
    std::swap(channelOf(color, one), channelOf(color, other));
    document.setColor(index, color);
  }
}

void recolorSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry color) {
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  document.recordColors();
  for (const std::int32_t index : indexes) {
    document.setColor(index, withChannels(document.getColor(index), mask, color));
  }
}

void fill(PaletteDocument& document, ChannelMask mask, std::int32_t current) {
  if (document.countSelected() > 0 && document.contains(current)) {
    recolorSelection(document, mask, document.getColor(current));
  }
}

void gradient(PaletteDocument& document, ChannelMask mask) {
  applyGradient(document, mask, [](std::int32_t a, std::int32_t b, std::int32_t k, std::int32_t n) {
    return static_cast<std::uint8_t>(((n - k) * a + k * b) / n);
  });
}

void brightGradient(PaletteDocument& document, ChannelMask mask) {
  applyGradient(document, mask, [](std::int32_t a, std::int32_t b, std::int32_t k, std::int32_t n) {
    return static_cast<std::uint8_t>(std::sqrt(((n - k) * a * a + k * b * b) / n));
  });
}

void useAsBlankColor(const PaletteDocument& document, std::int32_t current, AppSettings& settings) {
  if (document.contains(current)) {
    settings.blank = document.getColor(current);
  }
}

}  // namespace quillhue
