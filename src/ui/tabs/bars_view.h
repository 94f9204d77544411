#pragma once

#include <cstdint>
#include <optional>

#include "colormodes/channel_editor.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/wheel_sum.h"
#include "ui/win32/subclassed_control.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The surface with the three gradient bars. The mouse and its wheel change the editor's numbers.
class BarsView final : public SubclassedControl {
 public:
  /// `editor` must outlive the view.
  BarsView(HWND parent, ChannelEditor& editor, Scale scale);

  /// Answers WM_DRAWITEM.
  void paint(HDC dc) const;
  /// Repaints the bars, strips and markers.
  void repaintBars() const;

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  void press(Point point);
  void drag(Point point);
  void turnWheel(Point screenPoint, std::int32_t delta);
  [[nodiscard]] BarsLayout layout() const;

  ChannelEditor& editor_;
  Scale scale_;
  WheelSum wheel_;
  // The bar under the pointer at the last turn of the wheel.
  std::optional<Bar> wheelBar_;
};

}  // namespace quillhue
