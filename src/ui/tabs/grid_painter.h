#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"
#include "ui/win32/system.h"

namespace quillhue {

/// What the grid shows.
struct GridPicture {
  /// The colors.
  const Palette& palette;
  /// One byte an entry, as Palette::selected; empty where nothing is to be shown as selected.
  std::span<const std::uint8_t> selected{};
  /// Any index that is no entry for none.
  std::int32_t currentEntry = kNoEntry;
  bool hasFocus = false;
};

/// Paints what lies in `box`, with points relative to the grid's corner. Selected entries have an outline around their
/// color, the current entry has one within it, each a dark and a light line, so that one of them shows on any color.
void paintGrid(HDC dc, const Rect& box, const GridLayout& grid, const GridPicture& picture);

}  // namespace quillhue
