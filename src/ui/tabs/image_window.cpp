#include "ui/tabs/image_window.h"

#include <algorithm>
#include <array>

#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kClassName = L"QuillhueImage";

struct KeyRow {
  WPARAM key;
  bool isVertical;
  ScrollAction action;
};
constexpr auto kKeys = std::to_array<KeyRow>({{VK_LEFT, false, ScrollAction::lineBack},
                                              {VK_RIGHT, false, ScrollAction::lineForward},
                                              {VK_UP, true, ScrollAction::lineBack},
                                              {VK_DOWN, true, ScrollAction::lineForward},
                                              {VK_PRIOR, true, ScrollAction::pageBack},
                                              {VK_NEXT, true, ScrollAction::pageForward},
                                              {VK_HOME, true, ScrollAction::toStart},
                                              {VK_END, true, ScrollAction::toEnd}});

}  // namespace

ImageWindow::ImageWindow(HWND parent, ImageClient& client)
    : client_(client), tip_(*this, [&client](Point point) { return client.tooltipAt(point); }), accessibility_(client) {
  static_cast<void>(registerClass(windowClass(kClassName)));
  static_cast<void>(create({.windowClass = kClassName,
                            // The name for screen readers.
                            .title = L"Image",
                            .style = WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS,
                            .extendedStyle = WS_EX_ACCEPTFILES,
                            .parent = parent}));
}

void ImageWindow::contentChanged() {
  tip_.hide();
  repaint(handle());
}

void ImageWindow::contentChanged(const Rect& box) {
  tip_.hide();
  repaint(handle(), box);
}

LRESULT ImageWindow::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  tip_.note(message, wParam, lParam);
  if (Accessibility::isAsked(message, lParam)) {
    return accessibility_.answer(handle(), wParam);
  }
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(handle());
      return 0;
    case WM_MOUSEWHEEL:
      client_.wheelImage((GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT) == 0, GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_MOUSEHWHEEL:
      // A positive value means right here, but back for the vertical wheel.
      client_.wheelImage(false, -GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_KEYDOWN:
      return keyPressed(wParam) ? 0 : DefWindowProcW(handle(), message, wParam, lParam);
    case WM_GETDLGCODE:
      // Without this, letters typed without Alt would press the buttons with that access key.
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      repaint(handle());
      return 0;
    case WM_SETCURSOR:
      SetCursor(LoadCursorW(nullptr, IDC_ARROW));
      return TRUE;
    case WM_DROPFILES:
      filesDropped(wParam);
      return 0;
    default:
      return DefWindowProcW(handle(), message, wParam, lParam);
  }
}

void ImageWindow::paint() {
  const PaintDc dc(handle());
  const BackBuffer buffer(dc.get(), dc.box());
  client_.paintImage(buffer.get(), dc.box());
  if (GetFocus() == handle()) {
    RECT all{};
    GetClientRect(handle(), &all);
    DrawFocusRect(buffer.get(), &all);
  }
}

bool ImageWindow::keyPressed(WPARAM key) {
  const auto row = std::ranges::find(kKeys, key, &KeyRow::key);
  if (row == kKeys.end()) {
    return false;
  }
  client_.scrollImage(row->isVertical, row->action);
  return true;
}

void ImageWindow::filesDropped(WPARAM wParam) {
  const Drop drop(reinterpret_cast<HDROP>(wParam));
  // An open dialog disables the main window and blocks drops.
  if (IsWindowEnabled(GetParent(handle()))) {
    client_.fileDropped(firstFile(drop));
  }
}

}  // namespace quillhue
