#include "ui/number_field.h"

#include <algorithm>
#include <string>

#include "ui/logic/typed_number.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

std::int32_t textWidth(HFONT font, const ValueRange& range) {
  const ScreenDc dc(GetDC(nullptr));
  const Selected selected(dc.get(), font);
  LONG width = 0;
  for (const std::int32_t number : {range.minimum, range.maximum}) {
    const std::wstring text = std::to_wstring(number);
    SIZE size{};
    GetTextExtentPoint32W(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
    width = std::max(width, size.cx);
  }
  return width;
}

// Returns the largest reduced font in which the numbers of the range are at most `room` wide, or null if the font
// itself fits.
Font smallerFont(HFONT font, const ValueRange& range, std::int32_t room) {
  constexpr LONG kLeastHeight = 6;
  LOGFONTW description{};
  GetObjectW(font, sizeof description, &description);
  Font fitting;
  while (textWidth(fitting ? fitting.get() : font, range) > room && -description.lfHeight > kLeastHeight) {
    ++description.lfHeight;
    fitting.reset(CreateFontIndirectW(&description));
  }
  return fitting;
}

}  // namespace

NumberField::NumberField(HWND parent, HFONT font, DWORD style, DWORD arrowStyle)
    : field_(createControl(parent, font,
                           {.windowClass = L"Edit",
                            .style = WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL | style,
                            .extendedStyle = WS_EX_CLIENTEDGE})),
      arrows_(
          createControl(parent, nullptr,
                        {.windowClass = UPDOWN_CLASSW,
                         .style = UDS_ARROWKEYS | UDS_ALIGNRIGHT | UDS_SETBUDDYINT | UDS_NOTHOUSANDS | arrowStyle})),
      font_(font) {
  useRange(range_);
  setValue(0);
}

NumberField::NumberField(HWND field, HWND arrows, const ValueRange& range, std::int32_t value)
    : field_(field), arrows_(arrows) {
  useRange(range);
  setValue(value);
}

void NumberField::setRange(const ValueRange& range) {
  if (range != range_) {
    useRange(range);
  }
}

void NumberField::useRange(const ValueRange& range) {
  range_ = range;
  SendMessageW(arrows_.get(), UDM_SETRANGE32, static_cast<WPARAM>(range.minimum), range.maximum);
  fitText();
}

void NumberField::setValue(std::int32_t value) {
  value_ = range_.clamp(value);
  SendMessageW(arrows_.get(), UDM_SETPOS32, 0, value_);
  // The arrows may not update the text if they are already at this number.
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

bool NumberField::takesStep(const NMHDR& notification) {
  if (notification.code != static_cast<UINT>(UDN_DELTAPOS) || notification.hwndFrom != arrows_.get()) {
    return false;
  }
  setValue(steppedValue(value(), reinterpret_cast<const NMUPDOWN&>(notification).iDelta, range_));
  return true;
}

void NumberField::fitText() {
  RECT text{};
  SendMessageW(field_.get(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
  // One pixel is for the caret behind the last digit.
  const std::int32_t room = text.right - text.left - 1;
  if (font_ == nullptr || room <= 0) {
    return;
  }
  Font small = smallerFont(font_, range_, room);
  SendMessageW(field_.get(), WM_SETFONT, reinterpret_cast<WPARAM>(small ? small.get() : font_), TRUE);
  smallFont_ = std::move(small);
  // Setting a font may add margins, for which there is no room beside the arrows.
  SendMessageW(field_.get(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

void NumberField::move(const Rect& box) {
  moveTo(field_.get(), box);
  // Moves the arrows to the field's new position.
  SendMessageW(arrows_.get(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(field_.get()), 0);
  fitText();
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
