#include "ui/win32/focus_keeper.h"

namespace quillhue {

void FocusKeeper::note() {
  if (const HWND focused = GetFocus(); IsChild(window_, focused) != 0) {
    last_ = focused;
  }
}

HWND FocusKeeper::current() {
  note();
  return last_;
}

void FocusKeeper::give(HWND control) {
  const HWND focused = GetFocus();
  last_ = control;
  if (focused == window_ || IsChild(window_, focused) != 0) {
    SetFocus(control);
  }
}

void FocusKeeper::enter() const {
  // Otherwise an invisible control of a minimised window would get the focus.
  if (IsIconic(window_) != 0) {
    return;
  }
  const bool isUsable = IsChild(window_, last_) != 0 && IsWindowVisible(last_) != 0 && IsWindowEnabled(last_) != 0;
  if (const HWND control = isUsable ? last_ : GetNextDlgTabItem(window_, nullptr, FALSE)) {
    SetFocus(control);
  }
}

}  // namespace quillhue
