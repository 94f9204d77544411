#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "ui/logic/geometry.h"

namespace quillhue {

/// A button of the intro screen and its position.
struct IntroButton {
  std::string_view text;
  /// The name of the icon resource.
  std::string_view icon;
  std::string_view tooltip;
  /// The id of the menu command that it executes.
  std::int32_t command;
  /// The offset of its top left corner from the screen's center, in 1/96 inch.
  Point offset;
};

/// Returns the buttons from left to right and from top to bottom.
[[nodiscard]] std::span<const IntroButton> introButtons();
/// Returns the button whose context menu lists all system palettes.
[[nodiscard]] const IntroButton& systemPalettesButton();

[[nodiscard]] Rect introButtonBox(const IntroButton& button, Size screen, Scale scale);
/// Returns the part of a button that accepts a right click, relative to the button's corner.
[[nodiscard]] Rect introButtonFace(Scale scale);

/// Returns the area of the screen outside the buttons as boxes that do not overlap.
[[nodiscard]] std::vector<Rect> introBackground(Size screen, Scale scale);

}  // namespace quillhue
