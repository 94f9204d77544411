#pragma once

#include <cstdint>
#include <optional>

#include "core/value_range.h"
#include "ui/logic/geometry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// An edit field for a whole number with arrows at its right. The arrows keep to the range; what is typed need not.
class NumberField {
 public:
  NumberField() = default;
  /// `style` (ES_CENTER, ES_RIGHT) goes with that of the field, `arrowStyle` (WS_BORDER) with that of the arrows.
  NumberField(HWND parent, HFONT font, DWORD style, DWORD arrowStyle = 0);
  /// Takes over the two controls of a dialog, the arrows being the field's already.
  NumberField(HWND field, HWND arrows, const ValueRange& range, std::int32_t value);

  [[nodiscard]] HWND field() const { return field_.get(); }
  [[nodiscard]] HWND arrows() const { return arrows_.get(); }

  /// A number outside that is shown stays until settle or setValue.
  void setRange(const ValueRange& range);
  /// Shows the nearest number in the range, which reports a change to the field's parent if it is another text.
  void setValue(std::int32_t value);
  /// The number that the field shows, the nearest one in the range; the number before where it shows none.
  [[nodiscard]] std::int32_t value();
  /// What the field shows if that is a number at all, in the range or not.
  [[nodiscard]] std::optional<std::int32_t> typed() const;
  /// Shows value() where something else was typed. For the focus lost.
  void settle();
  /// Carries out the step that a notification of the arrows (UDN_DELTAPOS) asks for, from the number that value()
  /// gives. True when it was one of this field's: then the arrows' own step is to be refused, because it would go on
  /// from a number that they have kept while another was typed.
  [[nodiscard]] bool takesStep(const NMHDR& notification);

  /// Moves the field and puts the arrows into its right end. Repaints nothing.
  void move(const Rect& box);
  void show(bool visible);
  void enable(bool enabled);

 private:
  /// Takes a smaller font where the range has numbers that the field has no room for.
  void fitText();

  Window field_;
  Window arrows_;
  // Null in a dialog, whose fields have room.
  HFONT font_ = nullptr;
  Font smallFont_;
  ValueRange range_;
  std::int32_t value_ = 0;
};

}  // namespace quillhue
