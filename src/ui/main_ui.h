#pragma once

#include <cstdint>

#include "commands/command_table.h"
#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A screen of the main window: what fills its client area above the status bar, and answers its messages.
class MainUI {
 public:
  MainUI() = default;
  MainUI(const MainUI&) = delete;
  MainUI& operator=(const MainUI&) = delete;
  virtual ~MainUI() = default;

  /// A command of a menu or an accelerator.
  virtual void menuCommand(std::int32_t command) = 0;
  /// Every message that the main window does not answer itself. What the screen leaves goes to DefWindowProcW.
  virtual LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// The area of the screen, which begins at the client area's corner.
  virtual void resize(Size area) = 0;
  /// WM_COMMAND or a scroll message from a child window.
  virtual void controlNotification(HWND control, WPARAM wParam) = 0;
  virtual void paint(HDC dc, const Rect& area) = 0;
  /// The slot holds another document. May end the screen.
  virtual void documentReplaced() = 0;

  /// What decides about the menus' items.
  [[nodiscard]] virtual CommandState commandState() const = 0;
};

}  // namespace quillhue
