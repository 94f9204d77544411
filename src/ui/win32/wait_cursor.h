#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// Shows the wait cursor during long work in the window's thread.
class WaitCursor {
 public:
  WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() { SetCursor(before_); }

 private:
  HCURSOR before_;
};

}  // namespace quillhue
