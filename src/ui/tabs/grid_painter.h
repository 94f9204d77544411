#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Content of the grid.
struct GridPicture {
  const Palette& palette;
  /// One byte per entry, like Palette::selected(). May be empty if no entry is shown as selected.
  std::span<const std::uint8_t> selected{};
  /// Any other index if there is no current entry.
  std::int32_t currentEntry = kNoEntry;
  bool hasFocus = false;
};

/// Paints the part of the grid that is in `box`, with points relative to the grid's top left corner. Selected entries
/// have an outline around their color, and the current entry has one inside. Each outline is a dark and a light line,
/// so that it is visible on any color.
void paintGrid(HDC dc, const Rect& box, const GridLayout& grid, const GridPicture& picture);

}  // namespace quillhue
