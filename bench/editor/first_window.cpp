// What the editor shows before a palette is opened, by the fewest calls: the menu bar, the status bar and five buttons
// with icons, from the editor's own resources. It shows how much of the editor's start the system needs for them.
#include "bench/editor/one_window.h"
#include "core/utf8.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/intro_layout.h"

namespace {

using quillhue::fromUtf8;

constexpr quillhue::Scale kScale{USER_DEFAULT_SCREEN_DPI};
constexpr int kIconSide = 48;

void createControls(HWND window) {
  HWND statusBar = CreateStatusWindowW(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, L"", window, 0);
  const auto edges = quillhue::statusPartEdges(kScale);
  SendMessageW(statusBar, SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
  RECT area{};
  GetClientRect(window, &area);
  for (const quillhue::IntroButton& each : quillhue::introButtons()) {
    const quillhue::Rect box = quillhue::introButtonBox(each, {area.right, area.bottom}, kScale);
    HWND button =
        CreateWindowExW(0, L"Button", fromUtf8(each.text).c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_ICON,
                        box.left, box.top, box.width(), box.height(), window, nullptr, nullptr, nullptr);
    HANDLE icon = LoadImageW(GetModuleHandleW(nullptr), fromUtf8(each.icon).c_str(), IMAGE_ICON, kIconSide, kIconSide,
                             LR_DEFAULTCOLOR);
    SendMessageW(button, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
  }
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CREATE) {
    createControls(window);
    return 0;
  }
  return answerOther(window, message, wParam, lParam);
}

}  // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's declaration uses other names.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int showCommand) {
  WNDCLASSW description{};
  description.lpfnWndProc = answer;
  description.hIcon = LoadIconW(instance, L"MAINICON");
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszMenuName = L"MAINMENU";
  description.lpszClassName = L"FirstWindow";
  return showOneWindow(description, showCommand);
}
