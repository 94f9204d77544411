#include "core/commands/order.h"

#include <algorithm>
#include <iterator>

namespace quillhue {

namespace {

constexpr PaletteEntry kWhite{255, 255, 255};

// Returns the selected entries' colors in index order. Returns none if the mask is empty or fewer than two entries are
// selected.
std::vector<PaletteEntry> colorsToOrder(const PaletteDocument& document, ChannelMask mask) {
  std::vector<PaletteEntry> colors;
  if ((mask & kAllChannels) != 0 && document.countSelected() >= 2) {
    colors = selectedColors(document.getPalette());
  }
  return colors;
}

// The reordered colors, each with its sort key.
struct WorkList {
  std::vector<PaletteEntry> colors;
  std::vector<std::int32_t> keys;

  void insert(std::vector<std::int32_t>::const_iterator place, std::int32_t key, const PaletteEntry& color) {
    colors.insert(std::next(colors.begin(), std::distance(keys.cbegin(), place)), color);
    keys.insert(place, key);
  }
};

void applyOrder(PaletteDocument& document, ChannelMask mask, const std::vector<PaletteEntry>& colors) {
  const Palette ordered = paletteOf(colors);
  document.recordColors();
  document.applyChannels(mask, ordered);
}

PaletteEntry meanColor(const std::vector<PaletteEntry>& colors) {
  PaletteEntry mean;
  for (const Channel channel : kChannels) {
    std::int32_t sum = 0;
    for (const PaletteEntry& color : colors) {
      sum += channelOf(color, channel);
    }
    channelOf(mean, channel) = static_cast<std::uint8_t>(sum / static_cast<std::int32_t>(colors.size()));
  }
  return mean;
}

std::int32_t squaredDistance(const PaletteEntry& a, const PaletteEntry& b, ChannelMask mask) {
  std::int32_t sum = 0;
  for (const Channel channel : kChannels) {
    const std::int32_t difference = channelOf(a, channel) - channelOf(b, channel);
    sum += hasChannel(mask, channel) ? difference * difference : 0;
  }
  return sum;
}

// `keyMask` is `mask` or one channel.
void sortByKey(PaletteDocument& document, ChannelMask keyMask, ChannelMask mask) {
  const std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (colors.empty()) {
    return;
  }
  // kept on purpose: the list's colors are white outside the mask, and its keys come from them. The key searched for
  // comes from the original color. The list's keys are therefore either sorted or all equal, so bisection finds the
  // position.
  WorkList list;
  for (const PaletteEntry& color : colors) {
    const PaletteEntry moved = withChannels(kWhite, mask, color);
    list.insert(std::ranges::upper_bound(list.keys, channelSum(color, keyMask)), channelSum(moved, keyMask), moved);
  }
  applyOrder(document, mask, list.colors);
}

}  // namespace

void reverseSelection(PaletteDocument& document, ChannelMask mask) {
  std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (!colors.empty()) {
    std::ranges::reverse(colors);
    applyOrder(document, mask, colors);
  }
}

void sortByIntensity(PaletteDocument& document, ChannelMask mask) { sortByKey(document, mask, mask); }

void sortByChannel(PaletteDocument& document, Channel key, ChannelMask mask) { sortByKey(document, maskOf(key), mask); }

void sortByDeviation(PaletteDocument& document, ChannelMask mask) {
  const std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (colors.empty()) {
    return;
  }
  const PaletteEntry mean = meanColor(colors);
  WorkList list;
  for (const PaletteEntry& color : colors) {
    const std::int32_t distance = squaredDistance(color, mean, mask);
    list.insert(std::ranges::lower_bound(list.keys, distance), distance, color);
  }
  applyOrder(document, mask, list.colors);
}

}  // namespace quillhue
