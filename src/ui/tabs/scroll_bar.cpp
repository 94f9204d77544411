#include "ui/tabs/scroll_bar.h"

namespace quillhue {

std::optional<ScrollAction> scrollActionOf(WORD code) {
  switch (code) {
    case SB_LINEUP:
      return ScrollAction::lineBack;
    case SB_LINEDOWN:
      return ScrollAction::lineForward;
    case SB_PAGEUP:
      return ScrollAction::pageBack;
    case SB_PAGEDOWN:
      return ScrollAction::pageForward;
    case SB_THUMBTRACK:
    // Also sent by "Scroll Here" in the bar's context menu.
    case SB_THUMBPOSITION:
      return ScrollAction::track;
    case SB_TOP:
      return ScrollAction::toStart;
    case SB_BOTTOM:
      return ScrollAction::toEnd;
    default:
      return std::nullopt;
  }
}

std::int32_t trackedPosition(HWND bar, WORD lowWord) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(bar, SB_CTL, &info);
  // The tracking position is valid only during a drag.
  return LOWORD(info.nTrackPos) == lowWord ? info.nTrackPos : lowWord;
}

void showScrolling(HWND bar, const ScrollRange& range, std::int32_t position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL | SIF_DISABLENOSCROLL;
  info.nMax = range.extent > 0 ? range.extent - 1 : 0;
  info.nPage = static_cast<UINT>(range.page);
  info.nPos = position;
  SetScrollInfo(bar, SB_CTL, &info, TRUE);
}

}  // namespace quillhue
