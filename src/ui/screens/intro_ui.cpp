#include "ui/screens/intro_ui.h"

#include <algorithm>
#include <string>
#include <utility>

#include "commands/command_table.h"
#include "core/utf8.h"
#include "ui/logic/menus.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/window_context.h"

namespace quillhue {

namespace {

// In 1/96 inch.
constexpr std::int32_t kIconSide = 48;

}  // namespace

IntroUI::IntroUI(WindowContext& context) : context_(context), commands_(context), tips_(context.window) {
  for (const IntroButton& description : introButtons()) {
    buttons_.push_back(makeButton(description));
    tips_.set(buttons_.back().control->handle(), std::string(description.tooltip));
  }
  const Rect area = context_.frame.screenArea();
  resize({area.width(), area.height()});
}

IntroUI::Button IntroUI::makeButton(const IntroButton& description) const {
  const std::int32_t side = context_.scale(kIconSide);
  Icon icon(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), fromUtf8(description.icon).c_str(), IMAGE_ICON,
                                          side, side, LR_DEFAULTCOLOR)));
  return {
      .description = description,
      .control = std::make_unique<IconButton>(context_.window, description.text, description.tooltip, std::move(icon))};
}

void IntroUI::menuCommand(std::int32_t command) {
  const Command* const known = findCommand(command);
  if (known != nullptr && isHandled(known->scope, ActiveTab::none)) {
    known->act(commands_, command);
  }
}

LRESULT IntroUI::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  tips_.note(message, wParam);
  if (message == WM_CONTEXTMENU && openSystemPalettes(pointOf(lParam))) {
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

bool IntroUI::openSystemPalettes(Point screenPoint) {
  const auto button =
      std::ranges::find_if(buttons_, [](const Button& each) { return &each.description == &systemPalettesButton(); });
  const HWND control = button->control->handle();
  const Rect face = introButtonFace(context_.scale);
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
  context_.frame.openContextMenu(kNewPopup, screenPoint);
  return true;
}

void IntroUI::resize(Size area) {
  if (area == area_) {
    return;
  }
  area_ = area;
  for (const Button& button : buttons_) {
    moveTo(button.control->handle(), introButtonBox(button.description, area, context_.scale));
  }
}

void IntroUI::controlNotification(HWND control, WPARAM wParam) {
  const auto button =
      std::ranges::find_if(buttons_, [control](const Button& each) { return each.control->handle() == control; });
  if (button != buttons_.end() && HIWORD(wParam) == BN_CLICKED) {
    menuCommand(button->description.command);
  }
}

// Paints only outside the buttons, so that they do not flicker.
void IntroUI::paint(HDC dc, const Rect& area) {
  for (const Rect& box : introBackground({area.width(), area.height()}, context_.scale)) {
    fillBoxWithSystemColor(dc, box, COLOR_BTNFACE);
  }
}

void IntroUI::documentReplaced() {
  // Destroys this screen.
  context_.frame.showEditor();
}

}  // namespace quillhue
