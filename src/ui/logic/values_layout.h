#pragma once

#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Where the controls of the tab "Edit Values" stand beside the grid, in the main window.
struct ValuesLayout {
  /// The bars are painted on it; the other controls lie on its lower end.
  Rect surface;
  Rect leftField;
  Rect middleField;
  Rect rightField;
  /// With the list that drops down.
  Rect modelList;
};
[[nodiscard]] ValuesLayout valuesLayout(const GridLayout& grid, Scale scale);

}  // namespace quillhue
