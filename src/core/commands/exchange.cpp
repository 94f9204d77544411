#include "core/commands/exchange.h"

#include "core/commands/colors.h"

namespace quillhue {

bool copySelection(const PaletteDocument& document, PaletteClipboard& clipboard) {
  return clipboard.put(selectedColors(document.getPalette()));
}

void clearSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank) {
  recolorSelection(document, mask, blank);
}

void cutSelection(PaletteDocument& document, ChannelMask mask, PaletteEntry blank, PaletteClipboard& clipboard) {
  // Everything that can fail comes before the clipboard changes.
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  auto saved = document.saveColors();
  if (copySelection(document, clipboard)) {
    document.record(std::move(saved));
    for (const std::int32_t index : indexes) {
      document.setColor(index, withChannels(document.getColor(index), mask, blank));
    }
  }
}

void pasteIntoSelection(PaletteDocument& document, ChannelMask mask, PaletteClipboard& clipboard) {
  const auto entries = clipboard.get();
  if (!entries) {
    return;
  }
  const Palette pasted = paletteOf(*entries);
  document.recordColors();
  if (!entries->empty()) {
    document.applyChannels(mask, pasted);
  }
}

bool copyEntry(const PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard) {
  if (!document.contains(index)) {
    return false;
  }
  const PaletteEntry color = document.getColor(index);
  return clipboard.put({&color, 1});
}

void clearEntry(PaletteDocument& document, std::int32_t index, PaletteEntry blank) {
  replaceColor(document, index, blank);
}

bool pasteEntry(PaletteDocument& document, std::int32_t index, PaletteClipboard& clipboard) {
  const auto entries = clipboard.get();
  if (!entries || entries->empty()) {
    return false;
  }
  replaceColor(document, index, entries->front());
  return true;
}

void replaceColor(PaletteDocument& document, std::int32_t index, PaletteEntry color) {
  if (document.contains(index)) {
    document.recordColor(index);
    document.setColor(index, color);
  }
}

}  // namespace quillhue
