#pragma once

#include "ui/logic/geometry.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Boxes of the controls beside the grid on the tab "Edit Values", in client coordinates of the main window.
struct ValuesLayout {
  /// Shows the bars. The other controls are on its lower part.
  Rect surface;
  Rect leftField;
  Rect middleField;
  Rect rightField;
  /// Includes the drop-down list.
  Rect modelList;
};
[[nodiscard]] ValuesLayout valuesLayout(const GridLayout& grid, Scale scale);

}  // namespace quillhue
