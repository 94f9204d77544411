// A program with an empty window as large as the editor's: the least that a program with a window does. It has no
// manifest, menu or icon. Each movement of the mouse repaints it.
#include "bench/editor/one_window.h"

namespace {

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
    default:
      return answerOther(window, message, wParam, lParam);
  }
}

}  // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's declaration uses other names.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int showCommand) {
  WNDCLASSW description{};
  description.lpfnWndProc = answer;
  description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  description.lpszClassName = L"EmptyWindow";
  return showOneWindow(description, showCommand);
}
