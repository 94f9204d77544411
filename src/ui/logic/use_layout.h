#pragma once

#include "ui/logic/geometry.h"

namespace quillhue {

/// Boxes of the controls of the tab "Use Palette", in client coordinates of the main window.
struct UseLayout {
  /// The whole tab, below the other controls.
  Rect surface;

  /// The status text above the image.
  Rect status;
  /// The area to the left of the controls. It contains the view and its scroll bars.
  Rect imageArea;
  Rect view;
  Rect horizontalBar;
  Rect verticalBar;

  Rect load;
  Rect maintain;
  Rect nearest;
  Rect dither;
  Rect protectColor;
  Rect color;
  Rect protectGrid;
  Rect gridWidth;
  Rect gridHeight;
  /// Labels of the grid's number fields.
  Rect widthLabel;
  Rect heightLabel;
  Rect process;
  Rect saveAs;
};

/// `scrollBar` contains the width of the system's vertical scroll bars and the height of its horizontal ones.
[[nodiscard]] UseLayout useLayout(const Rect& area, Size scrollBar, Scale scale);

}  // namespace quillhue
