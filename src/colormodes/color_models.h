#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "colormodes/color_mode.h"

namespace quillhue {

/// A row of the catalogue: a color model's name and channels, and the function that creates its mode.
struct ColorModel {
  std::string_view name;
  ChannelDescriptions channels;
  std::unique_ptr<ColorMode> (*create)(const ColorModel& model, const DocumentSlot& slot);
};

/// Creates a mode; the rows of the catalogue use this as `create`.
template <typename Mode>
std::unique_ptr<ColorMode> makeColorMode(const ColorModel& model, const DocumentSlot& slot) {
  return std::make_unique<Mode>(model.channels, slot);
}

extern const ColorModel kCmyModel;
extern const ColorModel kHsiModel;
extern const ColorModel kHslModel;
extern const ColorModel kHsvModel;
extern const ColorModel kRgbModel;
extern const ColorModel kYcbcrModel;
extern const ColorModel kYdbdrModel;
extern const ColorModel kYiqModel;
extern const ColorModel kYuvModel;

/// Returns all models in the order of the list. A model's position is its index.
[[nodiscard]] std::span<const ColorModel* const> colorModels();

/// Returns the model of an index, or RGB if no model has the index.
[[nodiscard]] const ColorModel& colorModelOf(std::int32_t index);

/// Replaces the mode in `mode` with a mode of this model. It edits this entry of the slot's document. Its
/// bars and fixed strips are built from the entry's color. If no model has the index, the mode is RGB.
ColorMode& createColorMode(std::int32_t index, std::int32_t entry, const DocumentSlot& slot,
                           std::unique_ptr<ColorMode>& mode);

}  // namespace quillhue
