#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "colormodes/color_mode.h"
#include "core/palette.h"
#include "formats/work_image.h"
#include "remap/remapped_image.h"
#include "ui/logic/geometry.h"

namespace quillhue {

/// Texts that describe an entry of the palette or a pixel of an image.

/// Returns the text for the status bar: "29: #E8B0B0". Empty if the palette has no such entry.
[[nodiscard]] std::string entryStatusText(const Palette& palette, std::int32_t index);

/// Returns a color as three numbers: "red 232, green 176, blue 176".
[[nodiscard]] std::string numbersText(PaletteEntry color);
/// Returns the numbers of the mode's entry. `channels` are those of the mode's color model.
[[nodiscard]] std::string numbersText(const ColorMode& mode, const ChannelDescriptions& channels);

/// Returns the tooltip of an entry: the status text, and the numbers on a line of their own. Adds the color that a
/// preview shows instead, if it differs.
[[nodiscard]] std::string entryTooltip(const Palette& palette, std::int32_t index, const std::string& numbers,
                                       const Palette* preview = nullptr);

/// Return the tooltip of a pixel: "12, 7: index 29, #E8B0B0", without the index if the image has no palette. Empty if
/// the point is outside the image. An index past the result's colors has the blank color.
[[nodiscard]] std::string pixelTooltip(const WorkImage& image, Point point);
[[nodiscard]] std::string pixelTooltip(const RemappedImage& image, PaletteEntry blank, Point point);

/// Names for screen readers: "Entry 29, #E8B0B0", and "Image, 640 by 480 pixels, remapped". Without a size the name is
/// "No image".
[[nodiscard]] std::string entryName(const Palette& palette, std::int32_t index);
[[nodiscard]] std::string imageName(std::optional<Size> size, bool isRemapped);

}  // namespace quillhue
