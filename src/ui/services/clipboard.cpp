#include "ui/services/clipboard.h"

#include <new>

#include "ui/main_window.h"
#include "ui/win32/clipboard.h"
#include "ui/win32/logical_palette.h"

namespace quillhue {

void Clipboard::put(std::span<const PaletteEntry> entries) {
  ClipboardAccess clipboard(owner_.handle());
  clipboard.empty();
  clipboard.put(createLogicalPalette(entries));
}

std::optional<std::vector<PaletteEntry>> Clipboard::get() {
  const ClipboardAccess clipboard(owner_.handle());
  const HPALETTE palette = clipboard.palette();
  return palette == nullptr ? std::nullopt : std::optional(entriesOf(palette));
}

void Clipboard::putBitmap(std::span<const std::uint8_t> block) {
  ClipboardAccess clipboard(owner_.handle());
  clipboard.empty();
  clipboard.put(CF_DIB, block);
}

std::optional<std::vector<std::uint8_t>> Clipboard::getBitmap() const try {
  return ClipboardAccess(owner_.handle()).bytes(CF_DIB);
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

}  // namespace quillhue
