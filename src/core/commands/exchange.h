#pragma once

#include <cstdint>

#include "core/document.h"
#include "core/services.h"

namespace quillhue {

/// Commands that copy and paste colors, and clear them to the blank color.

/// Copies the selected entries to the clipboard. Empties the clipboard if none is selected. Returns false if the
/// clipboard does not accept the copy.
[[nodiscard]] bool copySelection(const PaletteDocument& document, PaletteClipboard& clipboard);

/// Copies the channels in `mask` of the blank color to every selected entry. Makes one undo step, even if nothing
/// changes.
void clearSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank);

/// Copies the selection, then clears it. Clears nothing if the clipboard does not accept the copy.
void cutSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank, PaletteClipboard& clipboard);

/// Copies the channels in `mask` of the clipboard's entry k to the k-th selected entry, until either runs out. Makes
/// one undo step, even if nothing changes. Does nothing if the clipboard gives no palette.
void pasteIntoSelection(PaletteDocument& document, ChannelMask mask, PaletteClipboard& clipboard);

/// The same operations for one entry, with all its channels, regardless of the selection. They do nothing if there is
/// no such entry. copyEntry then returns false, as it does if the clipboard does not accept the color.
[[nodiscard]] bool copyEntry(const PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard);
void clearEntry(PaletteDocument& document, std::int32_t index, PaletteEntry blank);
/// Returns false and changes nothing if the clipboard gives no palette or one without entries.
bool pasteEntry(PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard);

/// Gives one entry this color, as one undo step. Does nothing if there is no such entry.
void replaceColor(PaletteDocument& document, std::int32_t index, PaletteEntry color);

}  // namespace quillhue
