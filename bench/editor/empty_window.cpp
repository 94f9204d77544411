// A program with an empty window as large as the editor's: the least that a program with a window does. It has no
// manifest, menu or icon. Each movement of the mouse repaints it.
#include <windows.h>

namespace {

constexpr int kWidth = 872;
constexpr int kHeight = 752;

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: {
      PAINTSTRUCT paint{};
      BeginPaint(window, &paint);
      EndPaint(window, &paint);
      return 0;
    }
    case WM_MOUSEMOVE:
      InvalidateRect(window, nullptr, TRUE);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

}  // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's declaration uses other names.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int showCommand) {
  WNDCLASSW description{};
  description.lpfnWndProc = answer;
  description.hInstance = instance;
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  description.lpszClassName = L"EmptyWindow";
  RegisterClassW(&description);
  HWND window = CreateWindowExW(0, description.lpszClassName, L"Empty", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                CW_USEDEFAULT, kWidth, kHeight, nullptr, nullptr, instance, nullptr);
  ShowWindow(window, showCommand);
  UpdateWindow(window);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}
