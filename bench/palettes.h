#pragma once

#include <array>
#include <string_view>

#include "bench/images.h"
#include "core/palette.h"

namespace quillhue::bench {

/// A palette onto which images are remapped.
struct BenchPalette {
  std::string_view name;
  Palette (*create)(ImageSize size);
};

/// The regular 216 colors; 256 and 16 made of the photo-like image of that size by median cut; and 256 greys, onto
/// which no color can be dithered, so that errors leave the color cube for good.
[[nodiscard]] const std::array<BenchPalette, 4>& benchPalettes();

}  // namespace quillhue::bench
