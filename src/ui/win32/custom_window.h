#pragma once

#include <string>

#include "ui/win32/system.h"

namespace quillhue {

/// A window whose messages an object of ours answers. The class is registered with its first window.
class CustomWindow {
 public:
  CustomWindow(const CustomWindow&) = delete;
  CustomWindow& operator=(const CustomWindow&) = delete;

  /// Null before create, and after the window is destroyed.
  [[nodiscard]] HWND handle() const { return window_; }

 protected:
  CustomWindow() = default;
  /// Destroys the window; the messages of that come to nobody.
  virtual ~CustomWindow();

  /// Prepares a class whose windows are answered by objects of this kind: name, cursor, brush and so on are the
  /// caller's to add.
  [[nodiscard]] static WNDCLASSEXW windowClass(const wchar_t* name);
  /// False when the system refuses. A class of the name that exists already is taken as it is.
  [[nodiscard]] static bool registerClass(const WNDCLASSEXW& description);

  struct Creation {
    const wchar_t* windowClass = nullptr;
    std::wstring title{};
    DWORD style = 0;
    DWORD extendedStyle = 0;
    HWND parent = nullptr;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
  };
  /// False when the system refuses.
  [[nodiscard]] bool create(const Creation& creation);

  /// Answers a message; DefWindowProcW is for the rest.
  virtual LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace quillhue
