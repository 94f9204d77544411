#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <vector>

#include "core/services.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// The system's clipboard, on which the program puts palettes (CF_PALETTE) and bitmaps (CF_DIB).
class Clipboard final : public PaletteClipboard {
 public:
  /// `owner` owns what is put there.
  explicit Clipboard(const DialogOwner& owner) : owner_(owner) {}

  [[nodiscard]] bool put(std::span<const PaletteEntry> entries) override;
  [[nodiscard]] std::expected<std::vector<PaletteEntry>, NoPalette> get() override;

  /// A device-independent bitmap: header, colors, pixels. Replaces the clipboard's content; false when the clipboard
  /// can't be opened or refuses the bitmap.
  [[nodiscard]] bool putBitmap(std::span<const std::uint8_t> block);
  /// Nothing when the clipboard holds none or can't be opened. Throws std::bad_alloc.
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> getBitmap() const;

 private:
  const DialogOwner& owner_;
};

}  // namespace quillhue
