#include "ui/message_dispatch.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "commands/command_table.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// Returns whether the key means OK or Cancel in a dialog. The keyboard navigation would send these keys as commands 1
// and 2, which are menu commands here.
bool isDialogAnswer(const MSG& message) {
  constexpr std::array<WPARAM, 4> kKeys{VK_RETURN, VK_EXECUTE, VK_ESCAPE, VK_CANCEL};
  return message.message == WM_KEYDOWN && std::ranges::find(kKeys, message.wParam) != kKeys.end();
}

// Returns whether the focused text field handles the key.
bool editsFocusedText(const MSG& message) {
  const Accelerator key{.control = GetKeyState(VK_CONTROL) < 0,
                        .shift = GetKeyState(VK_SHIFT) < 0,
                        .key = static_cast<std::int32_t>(message.wParam)};
  return message.message == WM_KEYDOWN && editsText(key) && isControl(message.hwnd, WC_EDITW);
}

// Returns the target of a wheel message: the window under the pointer, regardless of the focus. Returns null for a
// combo box without the focus, because its choice would change by accident.
HWND wheelTarget(HWND window, const MSG& message) {
  const HWND under = WindowFromPoint(toSystem(pointOf(message.lParam)));
  if (under != window && IsChild(window, under) == 0) {
    return message.hwnd;
  }
  return isControl(under, WC_COMBOBOXW) && GetFocus() != under ? nullptr : under;
}

// Presses the focused button on Enter. The keyboard navigation does this only if the button was reached by Tab.
bool pressesButton(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_RETURN ||
      (SendMessageW(message.hwnd, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON) == 0) {
    return false;
  }
  SendMessageW(message.hwnd, BM_CLICK, 0, 0);
  return true;
}

}  // namespace

void dispatchMessage(HWND window, HACCEL accelerators, MSG& message) {
  if (message.message == WM_MOUSEWHEEL || message.message == WM_MOUSEHWHEEL) {
    message.hwnd = wheelTarget(window, message);
    if (message.hwnd == nullptr) {
      return;
    }
  }
  if (editsFocusedText(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return;
  }
  if (TranslateAcceleratorW(window, accelerators, &message) != 0 || pressesButton(message)) {
    return;
  }
  if (isDialogAnswer(message)) {
    // These keys close a drop-down list. Translated to characters, they would make a text field beep.
    DispatchMessageW(&message);
    return;
  }
  if (!IsDialogMessageW(window, &message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace quillhue
