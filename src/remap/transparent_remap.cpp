#include "remap/transparent_remap.h"

#include <algorithm>

namespace quillhue {

namespace {

std::vector<PaletteEntry> usedColors(const Palette& palette) {
  std::vector<PaletteEntry> colors = entriesOf(palette);
  colors.resize(std::min(colors.size(), std::size_t{kMaxUsedEntries}));
  return colors;
}

Palette without(std::vector<PaletteEntry> colors, std::int32_t entry) {
  colors.erase(colors.begin() + entry);
  return paletteOf(colors);
}

}  // namespace

TransparentRemapper::TransparentRemapper(const Palette& palette, std::int32_t transparentEntry)
    : colors_(usedColors(palette)), entry_(transparentEntry), opaque_(without(colors_, transparentEntry)) {}

bool TransparentRemapper::remap(const WorkImage& image, RemapOptions options, RemappedImage& result,
                                RemapProgress& progress) {
  options.skipsTransparent = image.hasTransparency();
  if (const auto& entry = options.protectedEntry; entry && *entry >= entry_) {
    options.protectedEntry = *entry == entry_ ? std::nullopt : std::optional(*entry - 1);
  }
  const bool isDone = opaque_.remap(image, options, result, progress);
  result.prepare(image.width(), image.height(), colors_);
  const auto transparent = static_cast<std::uint8_t>(entry_);
  for (std::int32_t y = 0; y < image.height(); ++y) {
    const auto row = result.row(y);
    for (std::size_t x = 0; x < row.size(); ++x) {
      if (image.isTransparent(y, x)) {
        row[x] = transparent;
      } else if (row[x] >= transparent) {
        ++row[x];
      }
    }
  }
  return isDone;
}

}  // namespace quillhue
