#pragma once

#include <cstdint>

#include "core/document.h"

namespace quillhue {

/// The commands that give selected entries other colors, each at most one undo step. `mask` holds the channels that
/// they may change.

/// Exchanges the two channels of every selected entry. Recorded also when nothing is selected.
void swapChannels(PaletteDocument& document, Channel one, Channel other);

/// Gives the channels in `mask` of all selected entries those of `color`. Recorded also when nothing is selected.
void recolorSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry color);

/// The current entry's color for every selected entry. Does nothing without a selection or a current entry.
void fill(PaletteDocument& document, ChannelMask mask, std::int32_t current);

/// Lead from the first selected entry's color to the last one's over those between, evenly by value or by the square
/// of the value. Do nothing with fewer than two selected entries; recorded also when the mask is empty.
void gradient(PaletteDocument& document, ChannelMask mask);
void brightGradient(PaletteDocument& document, ChannelMask mask);

/// Makes the current entry's color, if there is one, the blank color. No undo step: it is a setting.
void useAsBlankColor(const PaletteDocument& document, std::int32_t current, AppSettings& settings);

}  // namespace quillhue
