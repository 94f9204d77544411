#include "bench/palettes.h"

#include <cmath>
#include <map>
#include <set>
#include <string>

#include "core/generators.h"
#include "formats/image_colors.h"

namespace quillhue::bench {

namespace {

template <std::int32_t kSize>
Palette adaptive(ImageSize size) {
  static std::map<std::string, Palette> palettes;
  const auto found = palettes.find(nameOf(size));
  if (found != palettes.end()) {
    return found->second;
  }
  MemorySource source(bitmapOf(photoLikeImage(size)));
  const ImageColors colors(TrueColorBitmap::open(source).value());
  return palettes.emplace(nameOf(size), colors.reducedPalette(kSize, {})).first->second;
}

}  // namespace

const std::array<BenchPalette, 4>& benchPalettes() {
  static constexpr std::array<BenchPalette, 4> kPalettes{
      {{"regular-216", [](ImageSize /*size*/) { return createRgbPalette(216, {6, 6, 6}, false, {}); }},
       {"adaptive-256", adaptive<256>},
       {"adaptive-16", adaptive<16>},
       {"greys-256", [](ImageSize /*size*/) { return createGreyscalePalette(256); }}}};
  return kPalettes;
}

Palette withCorners(Palette palette) {
  std::set<std::int32_t> replaced;
  for (unsigned corner = 0; corner < 8; ++corner) {
    const auto channel = [corner](unsigned bit) { return static_cast<std::uint8_t>((corner >> bit & 1) * 255); };
    const PaletteEntry color{channel(0), channel(1), channel(2)};
    const auto distance = [&](std::int32_t index) {
      const PaletteEntry entry = palette.entry(index);
      return std::hypot(entry.red - color.red, entry.green - color.green, entry.blue - color.blue);
    };
    std::int32_t nearest = -1;
    for (std::int32_t index = 0; index < palette.getSize(); ++index) {
      if (!replaced.contains(index) && (nearest < 0 || distance(index) < distance(nearest))) {
        nearest = index;
      }
    }
    palette.setEntry(nearest, color);
    replaced.insert(nearest);
  }
  return palette;
}

}  // namespace quillhue::bench
