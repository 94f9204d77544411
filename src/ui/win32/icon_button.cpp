#include "ui/win32/icon_button.h"

#include <utility>

#include "ui/win32/controls.h"

namespace quillhue {

IconButton::IconButton(HWND parent, std::string_view text, std::string_view name, Icon icon)
    : SubclassedControl(createControl(
          parent, nullptr, {.windowClass = L"Button", .text = text, .style = WS_VISIBLE | WS_TABSTOP | BS_ICON})),
      name_(name),
      icon_(std::move(icon)) {
  SendMessageW(handle(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon_.get()));
}

LRESULT IconButton::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  return Accessibility::isAsked(message, lParam) ? accessibility_.answer(handle(), wParam)
                                                 : systemAnswer(message, wParam, lParam);
}

AccessibleElement IconButton::accessibleElement(std::int32_t /*index*/) {
  return {.name = name_, .role = ROLE_SYSTEM_PUSHBUTTON, .action = "Press"};
}

// The screen reader does not wait for the dialog that the button may open.
void IconButton::accessibleAct(std::int32_t /*index*/) { PostMessageW(handle(), BM_CLICK, 0, 0); }

}  // namespace quillhue
