#pragma once

#include <string>

#include "ui/win32/system.h"

namespace quillhue {

/// A window whose messages are answered by a C++ object.
class CustomWindow {
 public:
  CustomWindow(const CustomWindow&) = delete;
  CustomWindow& operator=(const CustomWindow&) = delete;

  /// Null before create() and after the window is destroyed.
  [[nodiscard]] HWND handle() const { return window_; }

 protected:
  CustomWindow() = default;
  /// Destroys the window. The messages sent during this are not answered by the object.
  virtual ~CustomWindow();

  /// Returns the description of a window class for objects of this type. The caller adds cursor, brush and so on.
  [[nodiscard]] static WNDCLASSEXW windowClass(const wchar_t* name);
  /// Registers the class, unless a class of this name is registered already. Returns false on failure.
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
  /// Returns false on failure.
  [[nodiscard]] bool create(const Creation& creation);

  /// Answers a message. Implementations pass other messages to DefWindowProcW. If one throws std::bad_alloc, shows a
  /// message to the user and answers with 0. If that happens in WM_CREATE, no window is created.
  virtual LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace quillhue
