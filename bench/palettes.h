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

/// The regular 216 colors; 256 and 16 colors made from the photo-like image of this size by median cut; and 256 greys.
/// No color can be dithered onto the greys, so errors leave the color cube for good.
[[nodiscard]] const std::array<BenchPalette, 4>& benchPalettes();

/// Returns the palette with the eight corners of the color cube in place of the entries nearest to them. It has at
/// least eight entries.
[[nodiscard]] Palette withCorners(Palette palette);

}  // namespace quillhue::bench
