#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "ui/logic/geometry.h"

namespace quillhue {

/// The buttons of the intro screen, and where they stand.
struct IntroButton {
  std::string_view text;
  /// The name of its icon among the program's resources.
  std::string_view icon;
  std::string_view tooltip;
  /// What it does, as a command of the menus.
  std::int32_t command;
  /// Of its corner from the screen's middle, in 1/96 inch.
  Point offset;
};

/// From left to right and from top to bottom.
[[nodiscard]] std::span<const IntroButton> introButtons();
/// The one whose right click offers all system palettes.
[[nodiscard]] const IntroButton& systemPalettesButton();

[[nodiscard]] Rect introButtonBox(const IntroButton& button, Size screen, Scale scale);
/// The part of a button, from its own corner, on which a right click counts.
[[nodiscard]] Rect introButtonFace(Scale scale);

/// What is left of a screen of this size: boxes that do not overlap.
[[nodiscard]] std::vector<Rect> introBackground(Size screen, Scale scale);

}  // namespace quillhue
