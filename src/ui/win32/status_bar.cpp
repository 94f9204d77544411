#include "ui/win32/status_bar.h"

#include <algorithm>
#include <utility>

#include "core/utf8.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// Minimum time between two painted texts, in milliseconds. While a bar is dragged, the text changes with every move of
// the pointer.
constexpr UINT_PTR kPauseTimer = 77;
constexpr UINT kPause = 50;

std::int32_t textWidth(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

// Returns the font with narrower letters, so that the text is at most `room` wide, or null if the font itself fits.
Font narrowFont(HDC dc, HFONT font, const std::wstring& text, std::int32_t room) {
  const Selected selected(dc, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  LOGFONTW description{};
  GetObjectW(font, sizeof description, &description);
  Font narrow;
  std::int32_t width = textWidth(dc, text);
  for (description.lfWidth = metrics.tmAveCharWidth; width > room && description.lfWidth > 1;) {
    --description.lfWidth;
    narrow.reset(CreateFontIndirectW(&description));
    const Selected tried(dc, narrow.get());
    width = textWidth(dc, text);
  }
  return narrow;
}

}  // namespace

StatusBar::StatusBar(HWND parent, int id, std::span<const std::int32_t> edges, int fittedPart)
    : SubclassedControl(
          Window(CreateStatusWindowW(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, L"", parent, static_cast<UINT>(id)))),
      fittedPart_(fittedPart) {
  SendMessageW(handle(), SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
}

void StatusBar::setText(int part, std::string_view text) {
  std::wstring wide = fromUtf8(text);
  if (part != fittedPart_) {
    SendMessageW(handle(), SB_SETTEXTW, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(wide.c_str()));
  } else if (wide != fittedText_) {
    fittedText_ = std::move(wide);
    if (!isPausing_) {
      repaintFitted();
    }
  }
}

void StatusBar::repaintFitted() {
  paintedText_ = fittedText_;
  SendMessageW(handle(), SB_SETTEXTW, static_cast<WPARAM>(fittedPart_) | SBT_OWNERDRAW, 0);
  isPausing_ = SetTimer(handle(), kPauseTimer, kPause, nullptr) != 0;
}

void StatusBar::endPause() {
  KillTimer(handle(), kPauseTimer);
  isPausing_ = false;
  if (paintedText_ != fittedText_) {
    repaintFitted();
  }
}

void StatusBar::draw(const DRAWITEMSTRUCT& item) const {
  constexpr std::int32_t kMargin = 2;
  RECT box = toSystem(fromSystem(item.rcItem).inset(kMargin));
  auto* const font = reinterpret_cast<HFONT>(SendMessageW(handle(), WM_GETFONT, 0, 0));
  const Font narrow = narrowFont(item.hDC, font, paintedText_, box.right - box.left);
  const Selected selected(item.hDC, narrow ? narrow.get() : font);
  SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
  SetBkMode(item.hDC, TRANSPARENT);
  DrawTextW(item.hDC, paintedText_.c_str(), static_cast<int>(paintedText_.size()), &box,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// The control does not know a text that it does not draw itself, but screen readers ask it for the text.
LRESULT StatusBar::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool isFitted = static_cast<int>(wParam) == fittedPart_;
  const auto length = MAKELONG(fittedText_.size(), SBT_OWNERDRAW);
  if (isFitted && message == SB_GETTEXTLENGTHW) {
    return length;
  }
  if (isFitted && message == SB_GETTEXTW) {
    std::ranges::copy(fittedText_.c_str(), fittedText_.c_str() + fittedText_.size() + 1,
                      reinterpret_cast<wchar_t*>(lParam));
    return length;
  }
  if (message == WM_TIMER && wParam == kPauseTimer) {
    endPause();
    return 0;
  }
  return systemAnswer(message, wParam, lParam);
}

}  // namespace quillhue
