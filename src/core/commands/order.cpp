#include "core/commands/order.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>

#include "core/color_space.h"

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
void sortBySum(PaletteDocument& document, ChannelMask keyMask, ChannelMask mask) {
  const std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (colors.empty()) {
    return;
  }
  // kept on purpose: the colors in the list are white outside the mask, and the list's keys come from these colors. But
  // the position is searched for with the key of the original color. The list's keys are either sorted or all equal, so
  // bisection works.
  WorkList list;
  for (const PaletteEntry& color : colors) {
    const PaletteEntry moved = withChannels(kWhite, mask, color);
    list.insert(std::ranges::upper_bound(list.keys, channelSum(color, keyMask)), channelSum(moved, keyMask), moved);
  }
  applyOrder(document, mask, list.colors);
}

// Returns `key` of each color.
template <auto kKey>
std::vector<double> keysBy(const std::vector<PaletteEntry>& colors, ChannelMask mask) {
  std::vector<double> keys;
  keys.reserve(colors.size());
  for (const PaletteEntry& color : colors) {
    keys.push_back(kKey(color, mask));
  }
  return keys;
}

std::vector<double> deviations(const std::vector<PaletteEntry>& colors, ChannelMask mask) {
  const PaletteEntry mean = meanColor(colors);
  std::vector<double> keys;
  std::ranges::transform(colors, std::back_inserter(keys),
                         [&](const PaletteEntry& color) { return squaredDistance(color, mean, mask); });
  return keys;
}

using Color = const PaletteEntry&;

constexpr std::array<SortKey, 10> kSortKeys{{
    {.name = "intensity", .keysOf = keysBy<[](Color color, ChannelMask mask) { return channelSum(color, mask); }>},
    {.name = "red", .keysOf = keysBy<[](Color color, ChannelMask) { return color.red; }>},
    {.name = "green", .keysOf = keysBy<[](Color color, ChannelMask) { return color.green; }>},
    {.name = "blue", .keysOf = keysBy<[](Color color, ChannelMask) { return color.blue; }>},
    {.name = "deviation", .keysOf = deviations},
    {.name = "hue", .graysFirst = true, .keysOf = keysBy<[](Color color, ChannelMask) { return hsvOf(color).hue; }>},
    {.name = "saturation", .keysOf = keysBy<[](Color color, ChannelMask) { return hsvOf(color).saturation; }>},
    {.name = "value", .keysOf = keysBy<[](Color color, ChannelMask) { return hsvOf(color).value; }>},
    {.name = "luma", .keysOf = keysBy<[](Color color, ChannelMask) { return lumaOf(color); }>},
    {.name = "oklab-lightness", .keysOf = keysBy<[](Color color, ChannelMask) { return oklabOf(color).lightness; }>},
}};

}  // namespace

std::span<const SortKey> sortKeys() { return kSortKeys; }

void sortByKey(PaletteDocument& document, const SortKey& key, bool descending, ChannelMask mask) {
  const std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (colors.empty()) {
    return;
  }
  // The index makes the sort stable.
  std::vector<std::tuple<bool, double, std::size_t>> places;
  const std::vector<double> keys = key.keysOf(colors, mask);
  places.reserve(colors.size());
  for (std::size_t i = 0; i < colors.size(); ++i) {
    places.emplace_back(key.graysFirst && !isGray(colors[i]), descending ? -keys[i] : keys[i], i);
  }
  std::ranges::sort(places);
  std::vector<PaletteEntry> ordered;
  ordered.reserve(places.size());
  for (const auto& place : places) {
    ordered.push_back(colors[std::get<std::size_t>(place)]);
  }
  applyOrder(document, mask, ordered);
}

void reverseSelection(PaletteDocument& document, ChannelMask mask) {
  std::vector<PaletteEntry> colors = colorsToOrder(document, mask);
  if (!colors.empty()) {
    std::ranges::reverse(colors);
    applyOrder(document, mask, colors);
  }
}

void sortByIntensity(PaletteDocument& document, ChannelMask mask) { sortBySum(document, mask, mask); }

void sortByChannel(PaletteDocument& document, Channel key, ChannelMask mask) { sortBySum(document, maskOf(key), mask); }

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
