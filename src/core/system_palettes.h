#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/palette.h"
#include "core/services.h"

namespace quillhue {

/// A palette that old hardware or the system is known by.
struct SystemPalette {
  /// Its menu command.
  std::int32_t commandId;
  /// For scripts.
  std::string_view name;
  std::string_view menuText;
  Palette (*create)(ScreenPalette& screen);
};

/// All of them, by command id.
[[nodiscard]] std::span<const SystemPalette> systemPalettes();

/// The palette of a menu command, the one of 16 Windows colors for any other id. No entry is selected.
[[nodiscard]] Palette createSystemPalette(std::int32_t commandId, ScreenPalette& screen);

/// A halftone palette for where there is no screen: 256 entries, the Windows colors at both ends; from entry 10 the
/// 216 combinations of 0, 51, 102, 153, 204 and 255, red changing fastest; from entry 226 20 greys between black and
/// white, 255 * k / 21 for k = 1 .. 20.
class FixedHalftone final : public ScreenPalette {
 public:
  [[nodiscard]] std::vector<PaletteEntry> halftone() override;
};

}  // namespace quillhue
