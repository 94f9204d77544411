#pragma once

#include <cstdint>

#include "commands/command_table.h"
#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A screen of the main window. It fills the client area above the status bar and answers its messages.
class MainUI {
 public:
  MainUI() = default;
  MainUI(const MainUI&) = delete;
  MainUI& operator=(const MainUI&) = delete;
  virtual ~MainUI() = default;

  /// Carries out a command of a menu or an accelerator.
  virtual void menuCommand(std::int32_t command) = 0;
  /// Answers a message that the main window does not answer itself. Passes unknown messages to DefWindowProcW.
  virtual LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// Sets the size of the screen, which starts at the client area's top left corner.
  virtual void resize(Size area) = 0;
  /// Handles WM_COMMAND or a scroll message from a child window.
  virtual void controlNotification(HWND control, WPARAM wParam) = 0;
  virtual void paint(HDC dc, const Rect& area) = 0;
  /// Called after the slot got another document. May destroy the screen.
  virtual void documentReplaced() = 0;

  /// Returns the state that determines which menu items are enabled.
  [[nodiscard]] virtual CommandState commandState() const = 0;
};

}  // namespace quillhue
