#include "ui/services/clipboard.h"

#include <utility>

#include "ui/win32/clipboard.h"
#include "ui/win32/logical_palette.h"

namespace quillhue {

bool Clipboard::put(std::span<const PaletteEntry> entries) {
  ClipboardAccess clipboard(owner_.window());
  clipboard.empty();
  return entries.empty() ? static_cast<bool>(clipboard) : clipboard.put(createLogicalPalette(entries));
}

std::expected<std::vector<PaletteEntry>, NoPalette> Clipboard::get() {
  const ClipboardAccess clipboard(owner_.window());
  if (!clipboard) {
    return std::unexpected(NoPalette::unavailable);
  }
  const HPALETTE palette = clipboard.palette();
  if (palette == nullptr) {
    return std::unexpected(NoPalette::notThere);
  }
  return entriesOf(palette);
}

bool Clipboard::putBitmap(std::span<const std::uint8_t> block) {
  ClipboardAccess clipboard(owner_.window());
  clipboard.empty();
  return clipboard.put(CF_DIB, block);
}

std::optional<Clipboard::Image> Clipboard::getImage() const {
  const ClipboardAccess clipboard(owner_.window());
  if (auto bitmap = clipboard.bytes(CF_DIB)) {
    return Image{.isPng = false, .bytes = std::move(*bitmap)};
  }
  if (auto png = clipboard.bytes(RegisterClipboardFormatW(L"PNG"))) {
    return Image{.isPng = true, .bytes = std::move(*png)};
  }
  return std::nullopt;
}

}  // namespace quillhue
