#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/palette.h"
#include "core/services.h"

namespace quillhue {

/// A standard palette of old hardware or of the system.
struct SystemPalette {
  /// Id of its menu command.
  std::int32_t commandId;
  /// Name for scripts.
  std::string_view name;
  std::string_view menuText;
  Palette (*create)(ScreenPalette& screen);
};

/// Returns all system palettes in the order of their command ids.
[[nodiscard]] std::span<const SystemPalette> systemPalettes();

/// Creates the palette of a menu command. Any other id gives the 16 Windows colors. No entry is selected.
[[nodiscard]] Palette createSystemPalette(std::int32_t commandId, ScreenPalette& screen);

/// The halftone palette used without a screen: 256 entries, with the Windows colors at both ends. Entry 10 starts the
/// 216 combinations of 0, 51, 102, 153, 204 and 255, with red changing fastest. Entry 226 starts 20 greys between black
/// and white: 255 * k / 21 for k = 1 .. 20.
class FixedHalftone final : public ScreenPalette {
 public:
  [[nodiscard]] std::vector<PaletteEntry> halftone() override;
};

}  // namespace quillhue
