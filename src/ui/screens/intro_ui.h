#pragma once

#include <memory>
#include <vector>

#include "ui/logic/intro_layout.h"
#include "ui/main_ui.h"
#include "ui/screens/shared_commands.h"
#include "ui/win32/control_tips.h"
#include "ui/win32/icon_button.h"
#include "ui/win32/system.h"

namespace quillhue {

struct WindowContext;

/// The first screen: a button for each way to get a palette.
class IntroUI final : public MainUI {
 public:
  explicit IntroUI(WindowContext& context);

  void menuCommand(std::int32_t command) override;
  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void resize(Size area) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  void paint(HDC dc, const Rect& area) override;
  void documentReplaced() override;
  [[nodiscard]] CommandState commandState() const override { return {}; }

 private:
  struct Button {
    const IntroButton& description;
    std::unique_ptr<IconButton> control;
  };

  [[nodiscard]] Button makeButton(const IntroButton& description) const;
  /// Opens the menu of system palettes if the point is on their button. The point -1, -1 means that the menu key was
  /// pressed. Returns true if the menu was opened.
  bool openSystemPalettes(Point screenPoint);

  WindowContext& context_;
  SharedCommands commands_;
  Size area_;
  std::vector<Button> buttons_;
  ControlTips tips_;
};

}  // namespace quillhue
