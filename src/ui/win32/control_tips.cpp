#include "ui/win32/control_tips.h"

#include <algorithm>
#include <utility>

#include "core/utf8.h"

namespace quillhue {

void ControlTips::set(HWND control, std::string text) {
  if (Tip* const tip = find(control)) {
    *tip = {control, std::move(text)};
  } else {
    tips_.push_back({control, std::move(text)});
  }
}

// The system sends WM_SETCURSOR before the control gets the movement, which the new tooltip then sees.
void ControlTips::note(UINT message, WPARAM wParam) {
  if (message != WM_SETCURSOR) {
    return;
  }
  Tip* const tip = find(reinterpret_cast<HWND>(wParam));
  if (tip != nullptr && !tip->window) {
    tip->window = create(*tip);
  }
}

ControlTips::Tip* ControlTips::find(HWND control) {
  const auto found = std::ranges::find(tips_, control, &Tip::control);
  return found == tips_.end() ? nullptr : &*found;
}

Window ControlTips::create(const Tip& tip) const {
  Window created(CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                                 CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr, GetModuleHandleW(nullptr), nullptr));
  std::wstring wide = fromUtf8(tip.text);
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(tip.control);
  tool.lpszText = wide.data();
  SendMessageW(created.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  return created;
}

}  // namespace quillhue
