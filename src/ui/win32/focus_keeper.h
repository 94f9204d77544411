#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// Remembers which control of a window has the keyboard focus while the window itself can't have it, because it is
/// minimised, inactive or has not been active yet.
class FocusKeeper {
 public:
  void attach(HWND window) { window_ = window; }

  /// Remembers the focused control if it belongs to the window. Call this for every message and before the window may
  /// lose the focus.
  void note();
  /// Returns the control that has the focus, or the one that gets it when the window becomes active again. Null if
  /// there is none.
  [[nodiscard]] HWND current();
  /// Gives the focus to a control, at once or when the window becomes active again.
  void give(HWND control);
  /// Passes the focus from the window to the control that had it last, or to the first tab stop.
  void enter() const;

 private:
  HWND window_ = nullptr;
  HWND last_ = nullptr;
};

}  // namespace quillhue
