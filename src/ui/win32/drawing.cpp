#include "ui/win32/drawing.h"

#include <algorithm>
#include <array>

namespace quillhue {

Point pointOf(LPARAM lParam) {
  return {static_cast<std::int16_t>(LOWORD(lParam)), static_cast<std::int16_t>(HIWORD(lParam))};
}

std::int32_t screenDpi() {
  const ScreenDc screen(GetDC(nullptr));
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

void fillBox(HDC dc, const Rect& box, COLORREF color) {
  const RECT system = toSystem(box);
  SetDCBrushColor(dc, color);
  FillRect(dc, &system, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void fillBoxWithSystemColor(HDC dc, const Rect& box, int systemColor) {
  const RECT system = toSystem(box);
  FillRect(dc, &system, GetSysColorBrush(systemColor));
}

void frameBox(HDC dc, const Rect& box, std::int32_t thickness, COLORREF color) {
  const Rect inner = box.inset(std::min({thickness, box.width() / 2, box.height() / 2}));
  const std::array<Rect, 4> edges{{{box.left, box.top, inner.left, box.bottom},
                                   {inner.right, box.top, box.right, box.bottom},
                                   {inner.left, box.top, inner.right, inner.top},
                                   {inner.left, inner.bottom, inner.right, box.bottom}}};
  for (const Rect& edge : edges) {
    fillBox(dc, edge, color);
  }
}

BackBuffer::BackBuffer(HDC target, const Rect& box)
    : target_(target),
      box_(box),
      dc_(CreateCompatibleDC(target)),
      bitmap_(CreateCompatibleBitmap(target, std::max(box.width(), 1), std::max(box.height(), 1))),
      selected_(dc_.get(), bitmap_.get()) {
  SetWindowOrgEx(dc_.get(), box.left, box.top, nullptr);
}

BackBuffer::~BackBuffer() {
  BitBlt(target_, box_.left, box_.top, box_.width(), box_.height(), dc_.get(), box_.left, box_.top, SRCCOPY);
}

}  // namespace quillhue
