#include "ui/support/input.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ui/support/windows.h"

namespace quillhue {

namespace {

void sendMouse(DWORD flags, int data = 0) { mouse_event(flags, 0, 0, static_cast<DWORD>(data), 0); }

void sendKey(int key, DWORD flags) {
  // This flag distinguishes keys from those of the keypad.
  constexpr std::array kExtended{VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,
                                 VK_END,  VK_PRIOR, VK_NEXT, VK_DELETE, VK_APPS};
  const bool isExtended = std::ranges::find(kExtended, key) != kExtended.end();
  const auto scan = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC);
  keybd_event(static_cast<BYTE>(key), static_cast<BYTE>(scan), flags | (isExtended ? KEYEVENTF_EXTENDEDKEY : 0), 0);
}

}  // namespace

void activate(const Program& program) {
  program.await("the foreground", [&] {
    // A hidden dialog that is about to close would still take keys.
    HWND dialog = program.topWindow(kDialogClass);
    HWND wanted = dialog != nullptr ? dialog : program.window();
    if (GetForegroundWindow() == wanted && IsWindowEnabled(wanted) != 0) {
      // The window gives the focus to a control a little later. A key pressed before would start from another control.
      return IsChild(wanted, focusOf(program)) != 0;
    }
    SetForegroundWindow(wanted);
    return false;
  });
}

void moveTo(const Program& program, Point point) {
  const auto move = [&] {
    // Moves the mouse too, because SetCursorPos alone need not send a message to windows.
    SetCursorPos(point.x, point.y);
    sendMouse(MOUSEEVENTF_MOVE);
  };
  move();
  // The display reports the move to the program some time later. A report after the next move would undo that move.
  constexpr int kLooks = 3;
  for (int i = 0; i < kLooks; ++i) {
    program.ask(program.window(), WM_NULL);
  }
  // The pointer has to stay there for a while.
  constexpr int kStays = 8;
  int stays = 0;
  program.await("the pointer", [&] {
    POINT place{};
    GetCursorPos(&place);
    if (Point{place.x, place.y} == point) {
      return ++stays >= kStays;
    }
    stays = 0;
    // A late report has undone it.
    move();
    return false;
  });
}

void press(Button button) { sendMouse(button == Button::left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN); }

void release(Button button) { sendMouse(button == Button::left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP); }

void turnWheel(int notches) { turnWheelBy(notches * WHEEL_DELTA); }

void turnWheelBy(int delta) { sendMouse(MOUSEEVENTF_WHEEL, delta); }

void clickAt(const Program& program, Point point, Button button, const std::vector<int>& held) {
  activate(program);
  moveTo(program, point);
  const HeldKeys keys(held);
  press(button);
  release(button);
}

HeldKeys::HeldKeys(std::vector<int> keys) : keys_(std::move(keys)) {
  for (const int key : keys_) {
    sendKey(key, 0);
  }
}

HeldKeys::~HeldKeys() {
  for (const int key : keys_) {
    sendKey(key, KEYEVENTF_KEYUP);
  }
}

void pressKey(int key, const std::vector<int>& held) {
  const HeldKeys keys(held);
  sendKey(key, 0);
  sendKey(key, KEYEVENTF_KEYUP);
}

void type(std::string_view text) {
  for (const char character : text) {
    pressKey(character);
  }
}

void tabTo(const Program& program, HWND control) {
  constexpr int kMostControls = 40;
  activate(program);
  for (int i = 0; i < kMostControls && focusOf(program) != control; ++i) {
    HWND before = focusOf(program);
    pressKey(VK_TAB);
    program.await("the focus to go on", [&] { return focusOf(program) != before; });
  }
  if (focusOf(program) != control) {
    throw ProgramError("the Tab key does not lead to the control \"" + narrow(textOf(control)) + '"');
  }
}

}  // namespace quillhue
