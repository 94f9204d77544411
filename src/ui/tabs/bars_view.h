#pragma once

#include <cstdint>
#include <optional>

#include "colormodes/channel_editor.h"
#include "core/enum_array.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/wheel_sum.h"
#include "ui/win32/accessible.h"
#include "ui/win32/subclassed_control.h"
#include "ui/win32/system.h"

namespace quillhue {

struct WindowContext;

/// The surface with the three gradient bars. The mouse and its wheel change the editor's numbers.
class BarsView final : public SubclassedControl, private AccessibleContent {
 public:
  /// `editor` must outlive the view.
  BarsView(const WindowContext& context, ChannelEditor& editor);

  /// Answers WM_DRAWITEM.
  void paint(HDC dc) const;
  /// Repaints the bars, strips and markers, and announces changed numbers to screen readers.
  void repaintBars();

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  void press(Point point);
  void drag(Point point);
  void turnWheel(Point screenPoint, std::int32_t delta);
  [[nodiscard]] BarsLayout layout() const;

  [[nodiscard]] std::int32_t accessibleCount() override { return static_cast<std::int32_t>(kBars.size()); }
  [[nodiscard]] AccessibleElement accessibleElement(std::int32_t index) override;
  [[nodiscard]] std::int32_t accessibleAt(Point point) override;
  void accessibleAct(std::int32_t index) override;
  [[nodiscard]] bool accessibleSetValue(std::int32_t index, const std::wstring& text) override;

  const WindowContext& context_;
  ChannelEditor& editor_;
  Accessibility accessibility_{*this};
  // Values last announced to screen readers.
  EnumArray<Bar, std::int32_t, kBars.size()> announced_{};
  WheelSum wheel_;
  // The bar under the pointer at the last turn of the wheel.
  std::optional<Bar> wheelBar_;
};

}  // namespace quillhue
