#pragma once

#include <utility>

#include "ui/win32/guarded.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A control of the system that handles some messages differently. It uses the control's user data.
class SubclassedControl {
 public:
  SubclassedControl(const SubclassedControl&) = delete;
  SubclassedControl& operator=(const SubclassedControl&) = delete;

  [[nodiscard]] HWND handle() const { return control_.get(); }

 protected:
  // SetWindowSubclass() would be slower: it looks up a property of the window twice for each message.
  explicit SubclassedControl(Window control) : control_(std::move(control)) {
    SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
  }
  virtual ~SubclassedControl() { SetWindowLongPtrW(handle(), GWLP_USERDATA, 0); }

  /// Answers a message. Implementations pass other messages to systemAnswer().
  virtual LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  [[nodiscard]] LRESULT systemAnswer(UINT message, WPARAM wParam, LPARAM lParam) const {
    return systemAnswer(handle(), message, wParam, lParam);
  }

 private:
  static LRESULT systemAnswer(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto ofClass = reinterpret_cast<WNDPROC>(GetClassLongPtrW(control, GCLP_WNDPROC));
    return CallWindowProcW(ofClass, control, message, wParam, lParam);
  }
  static LRESULT CALLBACK procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<SubclassedControl*>(GetWindowLongPtrW(control, GWLP_USERDATA));
    return self == nullptr
               ? systemAnswer(control, message, wParam, lParam)
               : guarded(control, message, LRESULT{0}, [&] { return self->answer(message, wParam, lParam); });
  }

  Window control_;
};

}  // namespace quillhue
