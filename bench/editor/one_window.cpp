#include "bench/editor/one_window.h"

namespace {

constexpr int kWidth = 872;
constexpr int kHeight = 752;

}  // namespace

int showOneWindow(WNDCLASSW description, int showCommand) {
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  RegisterClassW(&description);
  HWND window =
      CreateWindowExW(0, description.lpszClassName, description.lpszClassName, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                      CW_USEDEFAULT, CW_USEDEFAULT, kWidth, kHeight, nullptr, nullptr, description.hInstance, nullptr);
  ShowWindow(window, showCommand);
  UpdateWindow(window);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

LRESULT answerOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    PostQuitMessage(0);
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}
