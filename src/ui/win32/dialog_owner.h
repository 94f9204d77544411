#pragma once

#include "ui/logic/geometry.h"
#include "ui/win32/open_dialog.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Owner window of dialogs and message boxes, with its font and scale. It is empty until the main window exists, so
/// that objects that open dialogs can be made earlier.
class DialogOwner {
 public:
  void set(HWND window, HFONT font, Scale scale) {
    window_ = window;
    font_ = font;
    scale_ = scale;
  }

  /// The main window, or null before it exists.
  [[nodiscard]] HWND window() const { return window_; }
  /// The dialog that is open over the main window, or the main window itself.
  [[nodiscard]] HWND top() const { return openDialogOf(window_); }
  [[nodiscard]] HFONT font() const { return font_; }
  [[nodiscard]] Scale scale() const { return scale_; }

 private:
  HWND window_ = nullptr;
  HFONT font_ = nullptr;
  Scale scale_;
};

}  // namespace quillhue
