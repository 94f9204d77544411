#include "ui/tabs/grid_window.h"

#include <algorithm>
#include <array>

#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kClassName = L"QuillhueGrid";

constexpr UINT_PTR kNumberTimer = 1;
// A pause after which a typed number is complete, in milliseconds.
constexpr UINT kNumberPause = 1000;

GridSelection::Keys heldKeys() { return {.shift = GetKeyState(VK_SHIFT) < 0, .control = GetKeyState(VK_CONTROL) < 0}; }

struct KeyRow {
  WPARAM key;
  GridKey meaning;
};
constexpr auto kKeys = std::to_array<KeyRow>({{VK_LEFT, GridKey::left},
                                              {VK_RIGHT, GridKey::right},
                                              {VK_UP, GridKey::up},
                                              {VK_DOWN, GridKey::down},
                                              {VK_HOME, GridKey::home},
                                              {VK_END, GridKey::end},
                                              {VK_PRIOR, GridKey::pageUp},
                                              {VK_NEXT, GridKey::pageDown}});

}  // namespace

GridWindow::GridWindow(HWND parent, GridClient& client)
    : client_(client), tip_(*this, [&client](Point point) { return client.tooltipAt(point); }), accessibility_(client) {
  static_cast<void>(registerClass(windowClass(kClassName)));
  static_cast<void>(create({.windowClass = kClassName,
                            // The name for screen readers.
                            .title = L"Palette",
                            .style = WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS,
                            .parent = parent}));
}

LRESULT GridWindow::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  tip_.note(message, wParam, lParam);
  if (Accessibility::isAsked(message, lParam)) {
    return accessibility_.answer(handle(), wParam);
  }
  switch (message) {
    case WM_PAINT: {
      const PaintDc dc(handle());
      const BackBuffer buffer(dc.get(), dc.box());
      client_.paintGrid(buffer.get(), dc.box());
      return 0;
    }
    case WM_LBUTTONDOWN:
      SetFocus(handle());
      SetCapture(handle());
      client_.cancelNumber();
      client_.pressGrid(pointOf(lParam), heldKeys());
      return 0;
    case WM_MOUSEMOVE:
      if (GetCapture() == handle()) {
        client_.dragGrid(pointOf(lParam));
      }
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      client_.releaseGrid();
      return 0;
    case WM_SETCURSOR:
      SetCursor(client_.gridCursor() != nullptr ? client_.gridCursor() : LoadCursorW(nullptr, IDC_ARROW));
      return TRUE;
    default:
      return answerKeyboard(message, wParam, lParam);
  }
}

LRESULT GridWindow::answerKeyboard(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
      return keyPressed(wParam, (HIWORD(lParam) & KF_REPEAT) != 0) ? 0
                                                                   : DefWindowProcW(handle(), message, wParam, lParam);
    case WM_CHAR:
      characterTyped(static_cast<wchar_t>(wParam));
      return 0;
    case WM_TIMER:
      if (wParam == kNumberTimer) {
        KillTimer(handle(), kNumberTimer);
        client_.endNumber();
      }
      return 0;
    case WM_KEYUP:
      if (wParam == VK_SHIFT) {
        client_.releaseShift();
      }
      // The default handling opens the context menu when the menu key is released.
      return DefWindowProcW(handle(), message, wParam, lParam);
    case WM_GETDLGCODE:
      // Without this, letters typed without Alt would press the buttons with that access key.
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_KILLFOCUS:
      client_.cancelNumber();
      client_.releaseGrid();
      repaint(handle());
      return 0;
    case WM_SETFOCUS:
      announce(EVENT_OBJECT_FOCUS, handle(), client_.accessibleFocus());
      repaint(handle());
      return 0;
    default:
      return DefWindowProcW(handle(), message, wParam, lParam);
  }
}

bool GridWindow::keyPressed(WPARAM key, bool isRepeated) {
  if (key == VK_SPACE) {
    // Key repetition would flip the entry back and forth.
    if (!isRepeated) {
      client_.pressSpace(heldKeys());
    }
    return true;
  }
  if (key == VK_RETURN) {
    client_.endNumber();
    return true;
  }
  if (key == VK_ESCAPE) {
    client_.cancelNumber();
    return true;
  }
  const auto row = std::ranges::find(kKeys, key, &KeyRow::key);
  if (row == kKeys.end()) {
    return false;
  }
  client_.cancelNumber();
  client_.moveByKey(row->meaning, heldKeys());
  return true;
}

void GridWindow::characterTyped(wchar_t character) {
  if (character >= L'0' && character <= L'9') {
    client_.typeDigit(static_cast<char>(character));
    SetTimer(handle(), kNumberTimer, kNumberPause, nullptr);
  }
}

}  // namespace quillhue
