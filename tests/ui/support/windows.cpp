#include "ui/support/windows.h"

#include <array>

#include "ui/win32/system.h"

namespace quillhue {

namespace {

constexpr UINT kTextPatience = 10'000;

}  // namespace

BOOL CALLBACK addWindow(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

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

std::vector<HWND> findControls(HWND parent, const wchar_t* className) {
  std::vector<HWND> controls;
  EnumChildWindows(parent, addWindow, reinterpret_cast<LPARAM>(&controls));
  std::erase_if(controls, [&](HWND control) {
    return IsWindowVisible(control) == 0 ||
           (className != nullptr && lstrcmpiW(windowClass(control).c_str(), className) != 0);
  });
  return controls;
}

HWND findControl(HWND parent, const wchar_t* className, const wchar_t* text) {
  for (HWND window : findControls(parent, className)) {
    if (text == nullptr || textOf(window) == text) {
      return window;
    }
  }
  return nullptr;
}

HWND tabControl(const Program& program) { return findControl(program.window(), WC_TABCONTROLW); }

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

Size outerSizeOf(HWND window) {
  const Rect box = boxOnScreen(window);
  return {box.width(), box.height()};
}

Rect boxOnScreen(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  return fromSystem(box);
}

Rect boxInParent(HWND control) {
  RECT box{};
  GetWindowRect(control, &box);
  MapWindowPoints(nullptr, GetAncestor(control, GA_PARENT), reinterpret_cast<POINT*>(&box), 2);
  return fromSystem(box);
}

Point onScreen(HWND window, Point point) {
  POINT result{point.x, point.y};
  ClientToScreen(window, &result);
  return {result.x, result.y};
}

Point middleOf(const Rect& box) { return {(box.left + box.right) / 2, (box.top + box.bottom) / 2}; }

PaletteEntry pixelOf(HWND window, Point point) {
  const Point place = onScreen(window, point);
  const ScreenDc screen(GetDC(nullptr));
  return fromSystem(GetPixel(screen.get(), place.x, place.y));
}

std::vector<std::uint32_t> pixelsOf(HWND window) {
  const Size size = clientSize(window);
  const Point corner = onScreen(window, {});
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
  const ScreenDc screen(GetDC(nullptr));
  const MemoryDc memory(CreateCompatibleDC(screen.get()));
  const Bitmap bitmap(CreateCompatibleBitmap(screen.get(), size.width, size.height));
  {
    const Selected selected(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, size.width, size.height, screen.get(), corner.x, corner.y, SRCCOPY);
  }
  BITMAPINFO rows{};
  rows.bmiHeader = {sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(size.height), pixels.data(), &rows, DIB_RGB_COLORS);
  return pixels;
}

PaletteEntry systemColor(int color) { return fromSystem(GetSysColor(color)); }

HWND focusOf(const Program& program) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(program.threadId(), &info);
  return info.hwndFocus;
}

std::wstring statusText(const Program& program, int part) {
  std::array<wchar_t, 1024> text{};
  program.askAbout(program.control(STATUSCLASSNAMEW), SB_GETTEXTW, static_cast<WPARAM>(part), text);
  return text.data();
}

}  // namespace quillhue
