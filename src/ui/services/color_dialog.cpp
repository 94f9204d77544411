#include "ui/services/color_dialog.h"

#include <algorithm>
#include <array>

#include "ui/win32/drawing.h"
#include "ui/win32/system.h"

namespace quillhue {

std::optional<PaletteEntry> ColorDialog::chooseColor(PaletteEntry initial,
                                                     std::span<const PaletteEntry, kCustomColors> custom) {
  std::array<COLORREF, kCustomColors> customColors{};
  std::ranges::transform(custom, customColors.begin(), [](const PaletteEntry& color) { return toSystem(color); });
  CHOOSECOLORW question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner_.top();
  question.rgbResult = toSystem(initial);
  question.lpCustColors = customColors.data();
  question.Flags = CC_RGBINIT | CC_FULLOPEN;
  return ChooseColorW(&question) != 0 ? std::optional(fromSystem(question.rgbResult)) : std::nullopt;
}

}  // namespace quillhue
