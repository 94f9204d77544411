#pragma once

#include "ui/win32/guarded.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A control of the system that handles some messages differently.
class SubclassedControl {
 public:
  SubclassedControl(const SubclassedControl&) = delete;
  SubclassedControl& operator=(const SubclassedControl&) = delete;

  [[nodiscard]] HWND handle() const { return control_.get(); }

 protected:
  explicit SubclassedControl(Window control) : control_(std::move(control)) {
    SetWindowSubclass(handle(), procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  }
  virtual ~SubclassedControl() { RemoveWindowSubclass(handle(), procedure, 0); }

  /// Answers a message. Implementations pass other messages to DefSubclassProc.
  virtual LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  static LRESULT CALLBACK procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                    DWORD_PTR self) {
    return guarded(control, message, LRESULT{0},
                   [&] { return reinterpret_cast<SubclassedControl*>(self)->answer(message, wParam, lParam); });
  }

  Window control_;
};

}  // namespace quillhue
