#include "ui/services/clipboard.h"

#include <cstddef>
#include <string>
#include <utility>

#include "core/utf8.h"
#include "formats/color_list.h"
#include "ui/win32/clipboard.h"
#include "ui/win32/logical_palette.h"

namespace quillhue {

namespace {

// In characters. Longer text is not read; 64 per color are plenty.
constexpr std::size_t kMaxTextLength = 65536;

}  // namespace

// In both functions everything that can fail comes before the clipboard is emptied.
bool Clipboard::put(std::span<const PaletteEntry> entries) {
  LogicalPalette palette = createLogicalPalette(entries);
  const std::wstring text = fromUtf8(colorListText(entries));
  if (!palette && !entries.empty()) {
    return false;
  }
  ClipboardAccess clipboard(owner_.window());
  clipboard.empty();
  if (entries.empty()) {
    return static_cast<bool>(clipboard);
  }
  const bool taken = clipboard.put(std::move(palette));
  // The text is for other programs. The palette is copied even if the clipboard refuses the text.
  if (taken) {
    static_cast<void>(clipboard.putText(text));
  }
  return taken;
}

std::expected<std::vector<PaletteEntry>, NoPalette> Clipboard::get() {
  const ClipboardAccess clipboard(owner_.window());
  if (!clipboard) {
    return std::unexpected(NoPalette::unavailable);
  }
  if (const HPALETTE palette = clipboard.palette(); palette != nullptr) {
    return entriesOf(palette);
  }
  const auto text = clipboard.text(kMaxTextLength);
  auto colors = text ? parseColorList(toUtf8(*text)) : std::nullopt;
  if (!colors) {
    return std::unexpected(NoPalette::notThere);
  }
  return std::move(*colors);
}

bool Clipboard::putBitmap(std::span<const std::uint8_t> block) {
  GlobalMemory memory = globalCopy(block);
  if (!memory) {
    return false;
  }
  ClipboardAccess clipboard(owner_.window());
  clipboard.empty();
  return clipboard.put(CF_DIB, std::move(memory));
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
