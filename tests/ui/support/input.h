#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Input by mouse and keyboard, as if by the user: the system finds the window that gets it. Points are in screen
/// coordinates. No function waits for the program's reaction.

enum class Button : std::uint8_t { left, right };

/// Brings the program to the foreground, where keys go.
void activate(const Program& program);

void moveTo(const Program& program, Point point);
void press(Button button = Button::left);
void release(Button button = Button::left);
void turnWheel(int notches);
/// Turns the wheel by parts of a notch, which is 120.
void turnWheelBy(int delta);
/// Activates the program, moves there, and presses and releases while keys (VK_CONTROL, VK_SHIFT) are held.
void clickAt(const Program& program, Point point, Button button = Button::left, const std::vector<int>& held = {});

/// Presses and releases a key while others are held.
void pressKey(int key, const std::vector<int>& held = {});
/// Types digits and capital letters.
void type(std::string_view text);
/// Moves the focus to a control by the Tab key.
void tabTo(const Program& program, HWND control);

/// Holds keys during its lifetime. Moving the pointer may release them.
class HeldKeys {
 public:
  explicit HeldKeys(std::vector<int> keys);
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;
  ~HeldKeys();

 private:
  std::vector<int> keys_;
};

}  // namespace quillhue
