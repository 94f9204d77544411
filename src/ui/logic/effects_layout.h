#pragma once

#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Boxes of the controls beside the grid on the tab "Apply Effects", in client coordinates of the main window.
struct EffectsLayout {
  /// The whole tab, below the other controls.
  Rect surface;
  Rect red;
  Rect green;
  Rect blue;
  Rect preview;
  Rect reset;
  Rect value;
  /// Includes the drop-down list.
  Rect effectList;
  Rect apply;
};
[[nodiscard]] EffectsLayout effectsLayout(const GridLayout& grid, Scale scale);

}  // namespace quillhue
