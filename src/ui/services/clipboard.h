#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "core/services.h"

namespace quillhue {

class MainWindow;

/// The system's clipboard, on which the program puts palettes (CF_PALETTE) and bitmaps (CF_DIB).
class Clipboard final : public PaletteClipboard {
 public:
  /// `owner` owns what is put there.
  explicit Clipboard(const MainWindow& owner) : owner_(owner) {}

  void put(std::span<const PaletteEntry> entries) override;
  [[nodiscard]] std::optional<std::vector<PaletteEntry>> get() override;

  /// A device-independent bitmap: header, colors, pixels. Replaces whatever the clipboard holds.
  void putBitmap(std::span<const std::uint8_t> block);
  /// Nothing when the clipboard holds none, can't be opened, or holds more than there is memory for.
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> getBitmap() const;

 private:
  const MainWindow& owner_;
};

}  // namespace quillhue
