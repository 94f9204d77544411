#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "remap/remap.h"

namespace quillhue {

/// State of the tab "Use Palette" that determines which controls are enabled.
struct UseState {
  bool hasImage = false;
  /// The image has its own palette.
  bool isIndexed = false;
  /// There is a result to save.
  bool hasResult = false;
  /// An image is being remapped.
  bool isBusy = false;
  RemapMode mode = RemapMode::maintain;
  /// States of the two check boxes.
  bool protectColor = false;
  bool protectGrid = false;
};

/// Enabled controls. None is enabled while an image is being remapped.
struct LoadControls {
  bool load = false;
  bool maintain = false;
  bool nearest = false;
  bool dither = false;
  bool process = false;
  bool saveAs = false;

  friend bool operator==(const LoadControls&, const LoadControls&) = default;
};
[[nodiscard]] LoadControls loadControls(const UseState& state);

struct ProtectControls {
  bool protectColor = false;
  bool color = false;
  bool protectGrid = false;
  /// Both number fields of the grid.
  bool gridSides = false;

  friend bool operator==(const ProtectControls&, const ProtectControls&) = default;
};
[[nodiscard]] ProtectControls protectControls(const UseState& state);

/// Returns whether the labels of the grid's number fields are grey.
[[nodiscard]] constexpr bool areLabelsGrey(const UseState& state) { return !state.protectGrid; }

/// Returns the mode after an image is loaded. A true-color image has no mapping, so `maintain` becomes `nearest`.
[[nodiscard]] RemapMode modeAfterLoad(const UseState& state);
/// Returns the mode after a click on a radio button, or nothing if the mode is unchanged or not available.
[[nodiscard]] std::optional<RemapMode> clickedMode(const UseState& state, RemapMode clicked);

[[nodiscard]] std::string_view imageStatusText(bool hasImage);

}  // namespace quillhue
