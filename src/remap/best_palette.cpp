#include "remap/best_palette.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <tuple>
#include <utility>
#include <vector>

#include "remap/k_means.h"

namespace quillhue {

namespace {

// Boxes of at most this number of colors are not worth dividing: their colors are compared with the candidates one by
// one.
constexpr std::size_t kColorsInLeaf = 8;

PaletteEntry rounded(const Channels<float>& color) {
  const auto channel = [&](std::size_t i) { return clampToByte(static_cast<std::int32_t>(std::lround(color[i]))); };
  return {channel(0), channel(1), channel(2)};
}

void sortFromDarkToBright(std::vector<PaletteEntry>& entries) {
  std::ranges::sort(entries, {}, [](const PaletteEntry& entry) { return std::tuple(lumaOf(entry), entry); });
}

}  // namespace

Palette bestPalette(std::span<const CountedColor> colors, std::int32_t size, PaletteEntry blank) {
  std::vector<PaletteEntry> entries;
  if (colors.size() <= static_cast<std::size_t>(size)) {
    std::ranges::transform(colors, std::back_inserter(entries), &CountedColor::color);
  } else {
    ColorTree tree(weightedColors(colors));
    std::vector<Channels<float>> centers = tree.divideInto(static_cast<std::size_t>(size));
    tree.divideLeavesOver(kColorsInLeaf);
    std::ranges::transform(kMeans(tree, std::move(centers)), std::back_inserter(entries), rounded);
    sortFromDarkToBright(entries);
  }
  entries.resize(static_cast<std::size_t>(size), blank);
  return paletteOf(entries);
}

}  // namespace quillhue
