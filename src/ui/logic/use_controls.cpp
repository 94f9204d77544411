#include "ui/logic/use_controls.h"

namespace quillhue {

LoadControls loadControls(const UseState& state) {
  const bool canProcess = state.hasImage && !state.isBusy;
  return {
      .load = !state.isBusy,
      .maintain = canProcess && state.isIndexed,
      .nearest = canProcess,
      .dither = canProcess,
      .process = canProcess,
      .saveAs = state.hasResult && !state.isBusy,
  };
}

ProtectControls protectControls(const UseState& state) {
  const bool canProtect = state.mode == RemapMode::dither && !state.isBusy;
  return {
      .protectColor = canProtect,
      .color = canProtect && state.protectColor,
      .protectGrid = canProtect,
      .gridSides = canProtect && state.protectGrid,
  };
}

RemapMode modeAfterLoad(const UseState& state) {
  const bool isDirect = state.hasImage && !state.isIndexed;
  return isDirect && state.mode == RemapMode::maintain ? RemapMode::nearest : state.mode;
}

std::optional<RemapMode> clickedMode(const UseState& state, RemapMode clicked) {
  const bool isRefused = clicked == RemapMode::maintain && !(state.hasImage && state.isIndexed);
  return isRefused || clicked == state.mode ? std::nullopt : std::optional(clicked);
}

std::string_view imageStatusText(bool hasImage) { return hasImage ? "Image available" : "No image"; }

}  // namespace quillhue
