#include "ui/win32/custom_window.h"

#include <utility>

#include "ui/win32/guarded.h"

namespace quillhue {

CustomWindow::~CustomWindow() {
  if (const HWND window = std::exchange(window_, nullptr)) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
  }
}

WNDCLASSEXW CustomWindow::windowClass(const wchar_t* name) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = name;
  return description;
}

bool CustomWindow::registerClass(const WNDCLASSEXW& description) {
  return RegisterClassExW(&description) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

bool CustomWindow::create(const Creation& creation) {
  return CreateWindowExW(creation.extendedStyle, creation.windowClass, creation.title.c_str(), creation.style,
                         creation.x, creation.y, creation.width, creation.height, creation.parent, nullptr,
                         GetModuleHandleW(nullptr), this) != nullptr;
}

LRESULT CALLBACK CustomWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* const creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    auto* const created = static_cast<CustomWindow*>(creation->lpCreateParams);
    created->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* const self = reinterpret_cast<CustomWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) {
    return DefWindowProcW(window, message, wParam, lParam);
  }
  const LRESULT failure = message == WM_CREATE ? -1 : 0;
  const LRESULT result = guarded(window, message, failure, [&] { return self->answer(message, wParam, lParam); });
  if (message == WM_NCDESTROY) {
    self->window_ = nullptr;
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  }
  return result;
}

}  // namespace quillhue
