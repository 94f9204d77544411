#pragma once

#include <string>
#include <vector>

#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Tooltips of controls, each with a fixed text. They appear even while the window of the controls is inactive. A
/// tooltip is created when the pointer is first over its control, because creating these windows slows down the start.
class ControlTips {
 public:
  /// `window` is the parent of the controls.
  explicit ControlTips(HWND window) : window_(window) {}

  /// Sets the text of a control.
  void set(HWND control, std::string text);
  /// Call this for each message of the window. WM_SETCURSOR says where the pointer is.
  void note(UINT message, WPARAM wParam);

 private:
  struct Tip {
    HWND control;
    std::string text;
    Window window{};
  };

  [[nodiscard]] Tip* find(HWND control);
  [[nodiscard]] Window create(const Tip& tip) const;

  HWND window_;
  std::vector<Tip> tips_;
};

}  // namespace quillhue
