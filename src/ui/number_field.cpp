#include "ui/number_field.h"

// Needs windows.h before it.
#include <commctrl.h>

#include <string>

#include "ui/logic/typed_number.h"
#include "ui/win32/controls.h"

namespace quillhue {

NumberField::NumberField(HWND parent, HFONT font, DWORD style, DWORD arrowStyle)
    : field_(createControl(parent, font,
                           {.windowClass = L"Edit",
                            .style = WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL | style,
                            .extendedStyle = WS_EX_CLIENTEDGE})),
      arrows_(
          createControl(parent, nullptr,
                        {.windowClass = UPDOWN_CLASSW,
                         .style = UDS_ARROWKEYS | UDS_ALIGNRIGHT | UDS_SETBUDDYINT | UDS_NOTHOUSANDS | arrowStyle})) {
  // Beside the arrows there is room for four digits and no margins.
  SendMessageW(field_.get(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  SendMessageW(arrows_.get(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(field_.get()), 0);
  setRange(range_);
  setValue(0);
}

NumberField::NumberField(HWND field, HWND arrows, const ValueRange& range, std::int32_t value)
    : field_(field), arrows_(arrows) {
  setRange(range);
  setValue(value);
}

void NumberField::setRange(const ValueRange& range) {
  range_ = range;
  SendMessageW(arrows_.get(), UDM_SETRANGE32, static_cast<WPARAM>(range.minimum), range.maximum);
}

void NumberField::setValue(std::int32_t value) {
  value_ = range_.clamp(value);
  SendMessageW(arrows_.get(), UDM_SETPOS32, 0, value_);
  // The arrows may leave the text as it is where they stand at the number already.
  if (typed() != value_) {
    setWindowText(field_.get(), std::to_string(value_));
  }
}

std::int32_t NumberField::value() {
  value_ = typedValue(windowText(field_.get()), range_, value_);
  return value_;
}

std::optional<std::int32_t> NumberField::typed() const { return typedNumber(windowText(field_.get())); }

void NumberField::settle() {
  if (const std::int32_t settled = value(); typed() != settled) {
    setValue(settled);
  }
}

void NumberField::move(const Rect& box) {
  moveTo(field_.get(), box);
  // Taking the field as its buddy again, the arrows take their place in it anew.
  SendMessageW(arrows_.get(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(field_.get()), 0);
}

void NumberField::show(bool visible) {
  quillhue::show(field_.get(), visible);
  quillhue::show(arrows_.get(), visible);
}

void NumberField::enable(bool enabled) {
  quillhue::enable(field_.get(), enabled);
  quillhue::enable(arrows_.get(), enabled);
}

}  // namespace quillhue
