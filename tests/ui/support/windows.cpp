#include "ui/support/windows.h"

// Needs windows.h before it.
#include <commctrl.h>

#include <array>

#include "ui/logic/window_texts.h"
#include "ui/support/input.h"

namespace quillhue {

namespace {

constexpr UINT kTextPatience = 2000;

void addWindowsIn(HWND parent, std::vector<HWND>& windows) {
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    windows.push_back(child);
    addWindowsIn(child, windows);
  }
}

Rect boxFrom(const RECT& box) { return {box.left, box.top, box.right, box.bottom}; }

}  // namespace

std::wstring windowClass(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

std::wstring textOf(HWND window) {
  std::array<wchar_t, 1024> text{};
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                      kTextPatience, &length);
  return text.data();
}

std::vector<HWND> windowsIn(HWND parent) {
  std::vector<HWND> windows;
  addWindowsIn(parent, windows);
  return windows;
}

std::vector<HWND> findControls(HWND parent, const wchar_t* className) {
  std::vector<HWND> found;
  for (HWND window : windowsIn(parent)) {
    if (IsWindowVisible(window) != 0 && lstrcmpiW(windowClass(window).c_str(), className) == 0) {
      found.push_back(window);
    }
  }
  return found;
}

HWND findControl(HWND parent, const wchar_t* className, const wchar_t* text) {
  for (HWND window : findControls(parent, className)) {
    if (text == nullptr || textOf(window) == text) {
      return window;
    }
  }
  return nullptr;
}

std::wstring dialogText(HWND dialog) {
  std::wstring all;
  for (HWND window : findControls(dialog, L"Static")) {
    const std::wstring text = textOf(window);
    if (!text.empty()) {
      all += (all.empty() ? L"" : L"\n") + text;
    }
  }
  return all;
}

Size clientSizeOf(HWND window) {
  RECT box{};
  GetClientRect(window, &box);
  return {box.right, box.bottom};
}

Size outerSizeOf(HWND window) {
  const Rect box = boxOnScreen(window);
  return {box.width(), box.height()};
}

Rect boxOnScreen(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  return boxFrom(box);
}

Rect boxInParent(HWND control) {
  RECT box{};
  GetWindowRect(control, &box);
  MapWindowPoints(nullptr, GetAncestor(control, GA_PARENT), reinterpret_cast<POINT*>(&box), 2);
  return boxFrom(box);
}

Point onScreen(HWND window, Point point) {
  POINT result{point.x, point.y};
  ClientToScreen(window, &result);
  return {result.x, result.y};
}

PaletteEntry pixelOf(HWND window, Point point) {
  const Point place = onScreen(window, point);
  HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

HWND focusOf(const Program& program) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(program.threadId(), &info);
  return info.hwndFocus;
}

std::wstring statusText(const Program& program, int part) {
  HWND bar = findControl(program.window(), STATUSCLASSNAMEW);
  const auto length = LOWORD(program.ask(bar, SB_GETTEXTLENGTHW, static_cast<WPARAM>(part)));
  const ProgramMemory text(program, (length + std::size_t{1}) * sizeof(wchar_t));
  program.ask(bar, SB_GETTEXTW, static_cast<WPARAM>(part), text.address());
  return text.text();
}

HWND tabControl(const Program& program) { return findControl(program.window(), WC_TABCONTROLW); }

int chosenPage(const Program& program) { return static_cast<int>(program.ask(tabControl(program), TCM_GETCURSEL)); }

void choosePage(const Program& program, int page) {
  const ProgramMemory box(program, sizeof(RECT));
  program.ask(tabControl(program), TCM_GETITEMRECT, static_cast<WPARAM>(page), box.address());
  RECT tab{};
  box.read(&tab, sizeof(tab));
  clickAt(program, onScreen(tabControl(program), {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2}));
  program.await("page " + std::to_string(page), [&] { return chosenPage(program) == page; });
}

}  // namespace quillhue
