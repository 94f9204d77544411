#pragma once

#include <array>
#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// How a mouse gesture on the palette grid selects.
enum class SelectionMode : std::uint8_t { free, row, range };

/// What the user has chosen once and for all. A color mode or effect that its catalogue does not have counts as the
/// catalogue's fallback.
struct AppSettings {
  /// The size that a new palette is proposed to have.
  std::uint32_t paletteSize = 256;
  /// Fills the entries that growing a palette adds, and the unused ones of formats of a fixed size.
  PaletteEntry blank;
  /// A new palette is proposed to hold the Windows colors.
  bool windowsColors = false;
  /// The levels of red, green and blue that a new RGB palette is proposed to have.
  std::array<std::uint8_t, 3> rgbLevels{6, 7, 6};
  /// The color model of the channel editor: RGB.
  std::uint8_t colorMode = 4;
  /// The chosen effect: Color.
  std::uint8_t effect = 5;
  SelectionMode selectionMode = SelectionMode::free;
};

}  // namespace quillhue
