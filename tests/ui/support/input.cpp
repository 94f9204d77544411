#include "ui/support/input.h"

#include <array>

#include "ui/support/windows.h"

namespace quillhue {

namespace {

void send(INPUT input) {
  if (SendInput(1, &input, sizeof(input)) != 1) {
    throw ProgramError("the system takes no input");
  }
}

void sendMouse(DWORD flags, DWORD data = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = data;
  send(input);
}

INPUT keyInput(int key, DWORD flags) {
  // Keys that the keypad has too are told apart by this flag.
  constexpr std::array kExtended{VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,
                                 VK_END,  VK_PRIOR, VK_NEXT, VK_DELETE, VK_APPS};
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  for (const int extended : kExtended) {
    if (key == extended) {
      input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
    }
  }
  return input;
}

void sendKey(int key, DWORD flags) { send(keyInput(key, flags)); }

}  // namespace

void activate(const Program& program) {
  HWND wanted = GetLastActivePopup(program.window());
  program.await("the foreground", [&] {
    if (GetForegroundWindow() == wanted) {
      return true;
    }
    SetForegroundWindow(wanted);
    return false;
  });
}

void moveTo(const Program& program, Point point) {
  // A move by the mouse and not SetCursorPos alone, which windows need not hear of.
  SetCursorPos(point.x, point.y);
  sendMouse(MOUSEEVENTF_MOVE);
  // The display reports the move to the program in its own time: after the next one it would undo that.
  constexpr int kLooks = 3;
  for (int i = 0; i < kLooks; ++i) {
    program.ask(program.window(), WM_NULL);
  }
  // It has to stay there for a while.
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
    SetCursorPos(point.x, point.y);
    sendMouse(MOUSEEVENTF_MOVE);
    return false;
  });
}

void press(Button button) { sendMouse(button == Button::left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN); }

void release(Button button) { sendMouse(button == Button::left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP); }

void turnWheel(int notches) { sendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches) * WHEEL_DELTA); }

void clickAt(const Program& program, Point point, Button button, std::initializer_list<int> held) {
  activate(program);
  moveTo(program, point);
  const HeldKeys keys(held);
  press(button);
  release(button);
}

void drag(const Program& program, std::initializer_list<Point> points, std::initializer_list<int> held) {
  activate(program);
  moveTo(program, *points.begin());
  {
    const HeldKeys keys(held);
    press();
  }
  for (const Point& point : points) {
    moveTo(program, point);
  }
  release();
}

HeldKeys::HeldKeys(std::initializer_list<int> keys) : keys_(keys) {
  for (const int key : keys_) {
    sendKey(key, 0);
  }
}

HeldKeys::~HeldKeys() {
  for (const int key : keys_) {
    INPUT input = keyInput(key, KEYEVENTF_KEYUP);
    SendInput(1, &input, sizeof(input));
  }
}

void pressKey(int key, std::initializer_list<int> held) {
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
