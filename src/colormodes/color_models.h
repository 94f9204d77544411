#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "colormodes/color_mode.h"

namespace quillhue {

/// A color model: what the list of models shows, and how its mode is made.
struct ColorModel {
  std::string_view name;
  ChannelDescriptions channels;
  std::unique_ptr<ColorMode> (*create)(const ColorModel& model, const DocumentSlot& slot);
};

/// For the rows of the catalogue.
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

/// All models, in the order of the list; a model's place is its index.
[[nodiscard]] std::span<const ColorModel* const> colorModels();

/// The model of the index, RGB for an index without one.
[[nodiscard]] const ColorModel& colorModelOf(std::int32_t index);

/// Destroys what `mode` holds, then puts a mode of the model there that edits this entry of the slot's document, with
/// its bars and fixed strips built from the entry's color. Any index without a model gives RGB.
ColorMode& createColorMode(std::int32_t index, std::int32_t entry, const DocumentSlot& slot,
                           std::unique_ptr<ColorMode>& mode);

}  // namespace quillhue
