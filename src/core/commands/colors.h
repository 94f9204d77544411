#pragma once

#include <cstdint>

#include "core/document.h"

namespace quillhue {

/// Commands that change the colors of the selected entries, each in at most one undo step. `mask` holds the channels
/// that a command may change.

/// Exchanges two channels of every selected entry. Makes an undo step even if nothing is selected.
void swapChannels(PaletteDocument& document, Channel one, Channel other);

/// Copies the channels in `mask` from `color` to every selected entry. Makes an undo step even if nothing is selected.
void recolorSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry color);

/// Copies the channels in `mask` from the current entry to every selected entry. Does nothing without a selection or a
/// current entry.
void fill(PaletteDocument& document, ChannelMask mask, std::int32_t current);

/// Fade from the first selected entry's color to the last one's: gradient interpolates the channel values,
/// brightGradient their squares. They do nothing with fewer than two selected entries, and make an undo step even if
/// the mask is empty.
void gradient(PaletteDocument& document, ChannelMask mask);
void brightGradient(PaletteDocument& document, ChannelMask mask);

/// Makes the current entry's color the blank color. Does nothing without a current entry. The blank color is a setting,
/// so this makes no undo step.
void useAsBlankColor(const PaletteDocument& document, std::int32_t current, AppSettings& settings);

}  // namespace quillhue
