#pragma once

#include <cstdint>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/logic/grid_navigation.h"
#include "ui/logic/grid_selection.h"
#include "ui/tabs/hover_tip.h"
#include "ui/win32/accessible.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Content and behavior of the palette's grid. Points and boxes are relative to the grid's top left corner.
class GridClient : public AccessibleContent {
 public:
  virtual void paintGrid(HDC dc, const Rect& box) = 0;
  /// Handle a press of the left button, a move of the pointer with the button held, and the end of the gesture.
  virtual void pressGrid(Point point, GridSelection::Keys keys) = 0;
  virtual void dragGrid(Point point) = 0;
  virtual void releaseGrid() = 0;
  virtual void moveByKey(GridKey key, GridSelection::Keys keys) = 0;
  virtual void pressSpace(GridSelection::Keys keys) = 0;
  virtual void releaseShift() = 0;
  /// Handles a typed digit. The digits form an entry's number: endNumber() goes to the entry, cancelNumber() discards
  /// the digits.
  virtual void typeDigit(char digit) = 0;
  virtual void endNumber() = 0;
  virtual void cancelNumber() = 0;
  /// Returns the tooltip for a point, or an empty text for none.
  [[nodiscard]] virtual std::string tooltipAt(Point point) = 0;
  /// Returns null for the arrow.
  [[nodiscard]] virtual HCURSOR gridCursor() const = 0;
};

/// The child window of the grid, which can have the focus. Unhandled input messages go to the parent window.
class GridWindow final : public CustomWindow {
 public:
  GridWindow(HWND parent, GridClient& client);

  [[nodiscard]] bool hasFocus() const { return GetFocus() == handle(); }
  /// Call this when the content has changed.
  void hideTooltip() { tip_.hide(); }

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Answers messages about the keyboard and the focus.
  LRESULT answerKeyboard(UINT message, WPARAM wParam, LPARAM lParam);
  bool keyPressed(WPARAM key, bool isRepeated);
  void characterTyped(wchar_t character);

  GridClient& client_;
  HoverTip tip_;
  Accessibility accessibility_;
};

}  // namespace quillhue
