#include "bench/palettes.h"

#include <map>
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

}  // namespace quillhue::bench
