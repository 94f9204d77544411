#include "ui/tabs/hover_tip.h"

#include "core/utf8.h"
#include "ui/logic/tip_position.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// Must differ from the windows' other timers.
constexpr UINT_PTR kTimer = 77;
// Interval of the check whether the tooltip may stay, in milliseconds.
constexpr UINT kInterval = 100;

}  // namespace

void HoverTip::note(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      pointerMoved(pointOf(lParam));
      break;
    case WM_MOUSEHOVER:
      isTracking_ = false;
      if (mayShow()) {
        show(textAt_(pointOf(lParam)));
      }
      break;
    case WM_TIMER:
      if (wParam == kTimer && !mayShow()) {
        hide();
      }
      break;
    case WM_MOUSELEAVE:
      isTracking_ = false;
      [[fallthrough]];
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_KEYDOWN:
      hide();
      break;
    default:
      break;
  }
}

void HoverTip::pointerMoved(Point point) {
  if (!shown_.empty()) {
    if (mayShow()) {
      show(textAt_(point));
    }
  } else if (!isTracking_ && GetCapture() == nullptr) {
    TRACKMOUSEEVENT tracking{.cbSize = sizeof tracking,
                             .dwFlags = TME_HOVER | TME_LEAVE,
                             .hwndTrack = window_.handle(),
                             .dwHoverTime = HOVER_DEFAULT};
    isTracking_ = TrackMouseEvent(&tracking) != 0;
  }
}

void HoverTip::show(const std::string& text) {
  if (text == shown_) {
    return;
  }
  if (text.empty()) {
    hide();
    return;
  }
  TTTOOLINFOW description = tool();
  const Scale scale{screenDpi()};
  if (!tip_) {
    tip_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                               0, 0, window_.handle(), nullptr, GetModuleHandleW(nullptr), nullptr));
    SendMessageW(tip_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&description));
    // Without a maximum width, line feeds are not line breaks.
    constexpr std::int32_t kMaxWidth = 600;
    SendMessageW(tip_.get(), TTM_SETMAXTIPWIDTH, 0, scale(kMaxWidth));
  }
  std::wstring wide = fromUtf8(text);
  description.lpszText = wide.data();
  SendMessageW(tip_.get(), TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&description));
  const auto size =
      static_cast<DWORD>(SendMessageW(tip_.get(), TTM_GETBUBBLESIZE, 0, reinterpret_cast<LPARAM>(&description)));
  POINT pointer{};
  GetCursorPos(&pointer);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST), &monitor);
  const Point corner =
      tipPosition(fromSystem(pointer), {LOWORD(size), HIWORD(size)}, fromSystem(monitor.rcWork), scale);
  SendMessageW(tip_.get(), TTM_TRACKPOSITION, 0, MAKELPARAM(corner.x, corner.y));
  if (shown_.empty()) {
    SendMessageW(tip_.get(), TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&description));
    SetTimer(window_.handle(), kTimer, kInterval, nullptr);
  }
  shown_ = text;
}

void HoverTip::hide() {
  if (shown_.empty()) {
    return;
  }
  shown_.clear();
  KillTimer(window_.handle(), kTimer);
  TTTOOLINFOW description = tool();
  SendMessageW(tip_.get(), TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&description));
}

bool HoverTip::mayShow() const {
  POINT pointer{};
  GetCursorPos(&pointer);
  return GetCapture() == nullptr && WindowFromPoint(pointer) == window_.handle() &&
         IsWindowEnabled(GetAncestor(window_.handle(), GA_ROOT)) != 0;
}

TTTOOLINFOW HoverTip::tool() const {
  TTTOOLINFOW description{};
  description.cbSize = sizeof description;
  description.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
  description.hwnd = window_.handle();
  return description;
}

}  // namespace quillhue
