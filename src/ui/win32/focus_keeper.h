#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// Remembers which of a window's controls has the keyboard focus, for when the window can't have it: it is minimised,
/// inactive or has not been active yet.
class FocusKeeper {
 public:
  void attach(HWND window) { window_ = window; }

  /// Notes the control that has the focus, if one of the window's has. Called often, and before the focus may go.
  void note();
  /// The control that has the focus, or gets it when the window is active again; null for none.
  [[nodiscard]] HWND current();
  /// Gives the focus to a control, at once or when the window is active again.
  void give(HWND control);
  /// The window itself has got the focus: hands it on to the control that had it last, or to the first.
  void enter() const;

 private:
  HWND window_ = nullptr;
  HWND last_ = nullptr;
};

}  // namespace quillhue
