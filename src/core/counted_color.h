#pragma once

#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// A color of an image and the number of pixels that have it.
struct CountedColor {
  PaletteEntry color;
  std::uint32_t pixels = 0;
};

}  // namespace quillhue
