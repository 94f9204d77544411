#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "remap/remap.h"

namespace quillhue {

/// What decides about the controls of the tab "Use Palette".
struct UseState {
  bool hasImage = false;
  /// The image has a palette of its own.
  bool isIndexed = false;
  /// A result was made, and can be saved.
  bool hasResult = false;
  /// A run is on.
  bool isBusy = false;
  RemapMode mode = RemapMode::maintain;
  /// Their boxes are ticked.
  bool protectColor = false;
  bool protectGrid = false;
};

/// Which controls can be used. While a run is on none can.
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
  /// Both of the grid's numbers.
  bool gridSides = false;

  friend bool operator==(const ProtectControls&, const ProtectControls&) = default;
};
[[nodiscard]] ProtectControls protectControls(const UseState& state);

/// Whether the texts beside the grid's numbers are grey.
[[nodiscard]] constexpr bool areLabelsGrey(const UseState& state) { return !state.protectGrid; }

/// The mode after an image was loaded: an image of direct colors has no mapping to maintain.
[[nodiscard]] RemapMode modeAfterLoad(const UseState& state);
/// The mode that a click on a radio button leads to; nothing where it changes nothing or can't be.
[[nodiscard]] std::optional<RemapMode> clickedMode(const UseState& state, RemapMode clicked);

[[nodiscard]] std::string_view imageStatusText(bool hasImage);

}  // namespace quillhue
