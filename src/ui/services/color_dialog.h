#pragma once

#include <optional>
#include <span>

#include "core/services.h"

namespace quillhue {

class MainWindow;

/// The system's color chooser, open at full size.
class ColorDialog final : public ColorChooser {
 public:
  explicit ColorDialog(const MainWindow& owner) : owner_(owner) {}

  [[nodiscard]] std::optional<PaletteEntry> chooseColor(PaletteEntry initial,
                                                        std::span<const PaletteEntry, kCustomColors> custom) override;

 private:
  const MainWindow& owner_;
};

}  // namespace quillhue
