#include "ui/services/color_dialog.h"

#include <windows.h>
// Needs windows.h before it.
#include <commdlg.h>

#include <algorithm>
#include <array>

#include "ui/main_window.h"
#include "ui/win32/drawing.h"

namespace quillhue {

std::optional<PaletteEntry> ColorDialog::chooseColor(PaletteEntry initial,
                                                     std::span<const PaletteEntry, kCustomColors> custom) {
  std::array<COLORREF, kCustomColors> customColors{};
  std::ranges::transform(custom, customColors.begin(), [](const PaletteEntry& color) { return toSystem(color); });
  CHOOSECOLORW question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner_.dialogOwner();
  question.rgbResult = toSystem(initial);
  question.lpCustColors = customColors.data();
  question.Flags = CC_RGBINIT | CC_FULLOPEN;
  return ChooseColorW(&question) != 0 ? std::optional(fromSystem(question.rgbResult)) : std::nullopt;
}

}  // namespace quillhue
