#include "ui/screens/intro_ui.h"

#include <algorithm>

#include "core/utf8.h"
#include "ui/logic/menus.h"
#include "ui/main_window.h"
#include "ui/screens/shared_commands.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// 1/96 inch.
constexpr std::int32_t kIconSide = 48;

}  // namespace

IntroUI::IntroUI(MainWindow& window) : window_(window) {
  for (const IntroButton& description : introButtons()) {
    buttons_.push_back(makeButton(description));
  }
  const Rect area = window_.screenArea();
  resize({area.width(), area.height()});
}

IntroUI::Button IntroUI::makeButton(const IntroButton& description) const {
  const std::int32_t side = window_.scale()(kIconSide);
  Button button{.description = description};
  button.icon.reset(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), fromUtf8(description.icon).c_str(),
                                                  IMAGE_ICON, side, side, LR_DEFAULTCOLOR)));
  button.control =
      createControl(window_.handle(), nullptr,
                    {.windowClass = L"Button", .text = description.text, .style = WS_VISIBLE | WS_TABSTOP | BS_ICON});
  SendMessageW(button.control.get(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(button.icon.get()));
  button.tooltip = createTooltip(window_.handle(), button.control.get(), description.tooltip);
  return button;
}

void IntroUI::menuCommand(std::int32_t command) { runSharedCommand(window_, command); }

LRESULT IntroUI::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CONTEXTMENU && openSystemPalettes(pointOf(lParam))) {
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

bool IntroUI::openSystemPalettes(Point screenPoint) {
  const auto button =
      std::ranges::find_if(buttons_, [](const Button& each) { return &each.description == &systemPalettesButton(); });
  const HWND control = button->control.get();
  const Rect face = introButtonFace(window_.scale());
  if (screenPoint == Point{-1, -1} && GetFocus() == control) {
    POINT middle{face.width() / 2, face.height() / 2};
    ClientToScreen(control, &middle);
    screenPoint = fromSystem(middle);
  }
  POINT onButton = toSystem(screenPoint);
  ScreenToClient(control, &onButton);
  if (!face.contains(fromSystem(onButton))) {
    return false;
  }
  window_.openContextMenu(kNewPopup, screenPoint);
  return true;
}

void IntroUI::resize(Size area) {
  if (area == area_) {
    return;
  }
  area_ = area;
  for (const Button& button : buttons_) {
    moveTo(button.control.get(), introButtonBox(button.description, area, window_.scale()));
  }
}

void IntroUI::controlNotification(HWND control, WPARAM wParam) {
  const auto button =
      std::ranges::find_if(buttons_, [control](const Button& each) { return each.control.get() == control; });
  if (button != buttons_.end() && HIWORD(wParam) == BN_CLICKED) {
    runSharedCommand(window_, button->description.command);
  }
}

// The buttons are left out, so that they do not flicker.
void IntroUI::paint(HDC dc, const Rect& area) {
  for (const Rect& box : introBackground({area.width(), area.height()}, window_.scale())) {
    fillBoxWithSystemColor(dc, box, COLOR_BTNFACE);
  }
}

void IntroUI::documentReplaced() {
  // Ends this screen.
  window_.showEditor();
}

}  // namespace quillhue
