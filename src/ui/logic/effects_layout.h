#pragma once

#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Where the controls of the tab "Apply Effects" stand beside the grid, in the main window.
struct EffectsLayout {
  /// All of the tab; the other controls lie on it.
  Rect surface;
  Rect red;
  Rect green;
  Rect blue;
  Rect preview;
  Rect reset;
  Rect value;
  /// With the list that drops down.
  Rect effectList;
  Rect apply;
};
[[nodiscard]] EffectsLayout effectsLayout(const GridLayout& grid, Scale scale);

}  // namespace quillhue
