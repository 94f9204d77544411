#pragma once

#include <vector>

#include "core/services.h"

namespace quillhue {

/// The halftone palette that the system has for the screen.
class HalftonePalette final : public ScreenPalette {
 public:
  [[nodiscard]] std::vector<PaletteEntry> halftone() override;
};

}  // namespace quillhue
