#pragma once

#include <cstdint>

#include "core/document.h"
#include "core/services.h"

namespace quillhue {

/// Copying and pasting of palettes, and clearing to the blank color.

/// Copies the selected entries to the clipboard; with none selected it becomes empty. False when the clipboard does not
/// take them.
[[nodiscard]] bool copySelection(const PaletteDocument& document, PaletteClipboard& clipboard);

/// Gives the channels in `mask` of all selected entries the blank color's. One undo step, also when nothing changes.
void clearSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank);

/// Copies, then clears unless the clipboard did not take the copy.
void cutSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank, PaletteClipboard& clipboard);

/// Gives the k-th selected entry the channels in `mask` of the clipboard's entry k, until either runs out. One undo
/// step, also when nothing changes; nothing at all when the clipboard holds no palette.
void pasteIntoSelection(PaletteDocument& document, ChannelMask mask, PaletteClipboard& clipboard);

/// The same for one entry, with all its channels, whatever is selected. They do nothing when there is no such entry.
/// copyEntry answers false then, and when the clipboard does not take the color.
[[nodiscard]] bool copyEntry(const PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard);
void clearEntry(PaletteDocument& document, std::int32_t index, PaletteEntry blank);
/// False when the clipboard holds no palette or one without entries, which changes nothing.
bool pasteEntry(PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard);

/// Gives one entry this color, as one undo step; nothing when there is no such entry.
void replaceColor(PaletteDocument& document, std::int32_t index, PaletteEntry color);

}  // namespace quillhue
