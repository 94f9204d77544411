#pragma once

#include <cstdint>
#include <optional>

#include "core/value_range.h"
#include "ui/logic/geometry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// An edit field for a whole number with arrows at its right. The arrows stay within the range; typed text may not.
class NumberField {
 public:
  NumberField() = default;
  /// Creates the controls, for move() to place. `style` (ES_CENTER, ES_RIGHT) is added to the style of the field,
  /// `arrowStyle` (WS_BORDER) to that of the arrows.
  NumberField(HWND parent, HFONT font, DWORD style, DWORD arrowStyle = 0);
  /// Takes ownership of two controls of a dialog. The field must be the buddy of the arrows already.
  NumberField(HWND field, HWND arrows, const ValueRange& range, std::int32_t value);

  [[nodiscard]] HWND field() const { return field_.get(); }
  [[nodiscard]] HWND arrows() const { return arrows_.get(); }

  /// Sets the range. A displayed number outside the range stays until settle() or setValue().
  void setRange(const ValueRange& range);
  /// Shows the number, clamped to the range. If the text changes, the field's parent is notified.
  void setValue(std::int32_t value);
  /// Returns the displayed number, clamped to the range, or the previous number if the text is not a number.
  [[nodiscard]] std::int32_t value();
  /// Returns the displayed number without clamping, or nothing if the text is not a number.
  [[nodiscard]] std::optional<std::int32_t> typed() const;
  /// Replaces the text by value() if they differ. Call this when the field loses the focus.
  void settle();
  /// If the notification is a step of this field's arrows (UDN_DELTAPOS), steps from value() and returns true. The
  /// caller must then refuse the arrows' own step, which would start from an outdated number after typing.
  [[nodiscard]] bool takesStep(const NMHDR& notification);

  /// Moves the field, with the arrows at its right end. Does not repaint.
  void move(const Rect& box);
  void show(bool visible);
  void enable(bool enabled);

 private:
  void useRange(const ValueRange& range);
  /// Uses a smaller font if the numbers of the range do not fit into the field.
  void fitText();

  Window field_;
  Window arrows_;
  // Null in a dialog, where the fields are wide enough.
  HFONT font_ = nullptr;
  Font smallFont_;
  ValueRange range_;
  std::int32_t value_ = 0;
};

}  // namespace quillhue
