#include "ui/win32/controls.h"

#include <array>

#include "core/utf8.h"
#include "ui/win32/drawing.h"

namespace quillhue {

Window createControl(HWND parent, HFONT font, const ControlDescription& description) {
  Window control(CreateWindowExW(description.extendedStyle, description.windowClass, fromUtf8(description.text).c_str(),
                                 WS_CHILD | description.style, 0, 0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr),
                                 nullptr));
  if (font != nullptr) {
    SendMessageW(control.get(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  }
  return control;
}

std::wstring windowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

void setWindowText(HWND window, std::string_view text) { SetWindowTextW(window, fromUtf8(text).c_str()); }

Size clientSize(HWND window) {
  RECT box{};
  GetClientRect(window, &box);
  return {box.right, box.bottom};
}

void moveTo(HWND window, const Rect& box) {
  SetWindowPos(window, nullptr, box.left, box.top, box.width(), box.height(),
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS | SWP_NOREDRAW);
}

void repaintAll(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void show(HWND window, bool visible) { ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE); }

void enable(HWND window, bool enabled) {
  const bool losesFocus = !enabled && GetFocus() == window;
  EnableWindow(window, enabled ? TRUE : FALSE);
  if (losesFocus) {
    SetFocus(GetParent(window));
  }
}

void repaint(HWND window, bool erase) { InvalidateRect(window, nullptr, erase ? TRUE : FALSE); }

void repaint(HWND window, const Rect& box, bool erase) {
  const RECT system = toSystem(box);
  InvalidateRect(window, &system, erase ? TRUE : FALSE);
}

void passToChildren(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    SendMessageW(child, message, wParam, lParam);
  }
}

bool isTicked(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED; }

void tick(HWND button, bool ticked) {
  // A radio button that is ticked unticks the others of its group, which takes long in a window with many controls.
  if (isTicked(button) != ticked) {
    SendMessageW(button, BM_SETCHECK, ticked ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

void addItem(HWND combo, std::string_view text) {
  SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(fromUtf8(text).c_str()));
}

void chooseItem(HWND combo, std::int32_t index) { SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0); }

std::int32_t chosenItem(HWND combo) { return static_cast<std::int32_t>(SendMessageW(combo, CB_GETCURSEL, 0, 0)); }

bool isControl(HWND window, const wchar_t* windowClass) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return lstrcmpiW(name.data(), windowClass) == 0;
}

std::wstring firstFile(const Drop& drop) {
  std::array<wchar_t, MAX_PATH> name{};
  DragQueryFileW(drop.get(), 0, name.data(), static_cast<UINT>(name.size()));
  return name.data();
}

}  // namespace quillhue
