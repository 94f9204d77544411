#pragma once

#include "core/document.h"

namespace quillhue {

/// The commands that put the colors of the selected entries into another order, each one undo step. Only the channels
/// in `mask` move; the others stay where they are. They do nothing with an empty mask or fewer than two selected
/// entries.

/// First becomes last.
void reverseSelection(PaletteDocument& document, ChannelMask mask);

/// Rising by the sum of the channels in `mask`; entries with equal sums keep their order.
void sortByIntensity(PaletteDocument& document, ChannelMask mask);

/// Rising by one channel; entries with equal values keep their order. A channel that is not in `mask` sorts nothing:
/// entries with 255 in it come last, in order, and the others before them, backwards.
void sortByChannel(PaletteDocument& document, Channel key, ChannelMask mask);

/// Rising by the squared distance from the mean color, over the channels in `mask`; of entries with equal distances
/// the later one comes first.
void sortByDeviation(PaletteDocument& document, ChannelMask mask);

}  // namespace quillhue
