#pragma once

#include <array>
#include <cstdint>

#include "core/palette_entry.h"

namespace quillhue {

/// How a mouse gesture on the palette grid selects.
enum class SelectionMode : std::uint8_t { free, row, range };

/// The user's settings. If a catalogue has no color model or effect with the stored index, it uses its fallback.
struct AppSettings {
  /// Proposed size of a new palette.
  std::uint32_t paletteSize = 256;
  /// Color of entries added by resizing, and of unused entries in formats of fixed size.
  PaletteEntry blank;
  /// Whether the Windows colors are proposed for a new palette.
  bool windowsColors = false;
  /// Proposed levels of red, green and blue for a new RGB palette.
  std::array<std::uint8_t, 3> rgbLevels{6, 7, 6};
  /// Index of the channel editor's color model. 4 is RGB.
  std::uint8_t colorMode = 4;
  /// Index of the chosen effect. 5 is Color.
  std::uint8_t effect = 5;
  SelectionMode selectionMode = SelectionMode::free;
};

}  // namespace quillhue
