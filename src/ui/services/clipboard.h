#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <vector>

#include "core/services.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// Puts palettes (CF_PALETTE) and bitmaps (CF_DIB) on the system's clipboard, and reads palettes, bitmaps and PNG
/// files. A palette is also put as text, one color per line. If the clipboard holds no palette, text that consists of
/// colors only is read as one.
class Clipboard final : public PaletteClipboard {
 public:
  /// `owner` becomes the owner of the data on the clipboard.
  explicit Clipboard(const DialogOwner& owner) : owner_(owner) {}

  [[nodiscard]] bool put(std::span<const PaletteEntry> entries) override;
  [[nodiscard]] std::expected<std::vector<PaletteEntry>, NoPalette> get() override;

  /// Replaces the clipboard's content by a device-independent bitmap: header, colors, pixels. Returns false if the
  /// clipboard can't be opened or refuses the bitmap.
  [[nodiscard]] bool putBitmap(std::span<const std::uint8_t> block);
  /// A device-independent bitmap or a PNG file. Other bytes may follow.
  struct Image {
    bool isPng = false;
    std::vector<std::uint8_t> bytes;
  };
  /// Returns the bitmap, or else the PNG file (format "PNG"), or nothing if there is neither or the clipboard can't be
  /// opened. Throws std::bad_alloc.
  [[nodiscard]] std::optional<Image> getImage() const;

 private:
  const DialogOwner& owner_;
};

}  // namespace quillhue
