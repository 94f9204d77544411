#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/document.h"

namespace quillhue {

/// Commands that reorder the colors of the selected entries, each as one undo step. Only the channels in `mask` move.
/// The commands do nothing if the mask is empty or fewer than two entries are selected.

/// Reverses the order.
void reverseSelection(PaletteDocument& document, ChannelMask mask);

/// Sorts by the sum of the channels in `mask`, ascending. Entries with equal sums keep their order.
void sortByIntensity(PaletteDocument& document, ChannelMask mask);

/// Sorts by one channel, ascending. Entries with equal values keep their order. A channel outside `mask` does not sort:
/// entries that have 255 in it come last, in their order, and all others come first, in reverse order.
void sortByChannel(PaletteDocument& document, Channel key, ChannelMask mask);

/// A key to sort by in either direction.
struct SortKey {
  std::string_view name;
  /// Whether grays, which have no hue, come first.
  bool graysFirst = false;
  /// Returns the key of each color. `mask` is that of the command.
  std::vector<double> (*keysOf)(const std::vector<PaletteEntry>& colors, ChannelMask mask);
};
/// Returns all keys, including those of the other commands in this file.
[[nodiscard]] std::span<const SortKey> sortKeys();

/// Sorts by any key. Entries with equal keys keep their order.
void sortByKey(PaletteDocument& document, const SortKey& key, bool descending, ChannelMask mask);

/// Sorts by the squared distance from the mean color over the channels in `mask`, ascending. Entries with equal
/// distances are reversed.
void sortByDeviation(PaletteDocument& document, ChannelMask mask);

}  // namespace quillhue
