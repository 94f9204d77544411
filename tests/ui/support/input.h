#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Mouse and keyboard, as if the user moved and pressed them: the system finds the window that gets the input. Points
/// are those of the screen. None of these waits for what the program makes of it.

enum class Button : std::uint8_t { left, right };

/// Brings the program to the foreground, where keys go.
void activate(const Program& program);

void moveTo(const Program& program, Point point);
void press(Button button = Button::left);
void release(Button button = Button::left);
void turnWheel(int notches);
/// By parts of a notch, which is 120.
void turnWheelBy(int delta);
/// Activates the program, moves there, and presses and releases while keys (VK_CONTROL, VK_SHIFT) are held.
void clickAt(const Program& program, Point point, Button button = Button::left, const std::vector<int>& held = {});

/// Presses and releases a key while others are held.
void pressKey(int key, const std::vector<int>& held = {});
/// Digits and capital letters.
void type(std::string_view text);
/// Goes to a control by the Tab key.
void tabTo(const Program& program, HWND control);

/// Holds keys as long as this lives. Moving the pointer may let go of them.
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
