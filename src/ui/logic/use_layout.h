#pragma once

#include "ui/logic/geometry.h"

namespace quillhue {

/// Where the parts of the tab "Use Palette" stand, in the main window.
struct UseLayout {
  /// All of the tab; the other controls lie on it.
  Rect surface;

  /// The status text, above the image.
  Rect status;
  /// All that is left of the controls, and within it where the image is seen.
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
  /// The texts beside the grid's numbers.
  Rect widthLabel;
  Rect heightLabel;
  Rect process;
  Rect saveAs;
};

/// `scrollBar` tells how wide the system makes a vertical scroll bar and how high a horizontal one.
[[nodiscard]] UseLayout useLayout(const Rect& area, Size scrollBar, Scale scale);

}  // namespace quillhue
