#pragma once

#include <vector>

#include "core/services.h"

namespace quillhue {

/// The system's halftone palette for the screen.
class HalftonePalette final : public ScreenPalette {
 public:
  [[nodiscard]] std::vector<PaletteEntry> halftone() override;
};

}  // namespace quillhue
