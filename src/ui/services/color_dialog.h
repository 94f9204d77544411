#pragma once

#include <optional>
#include <span>

#include "core/services.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// The system's color dialog, fully expanded.
class ColorDialog final : public ColorChooser {
 public:
  explicit ColorDialog(const DialogOwner& owner) : owner_(owner) {}

  [[nodiscard]] std::optional<PaletteEntry> chooseColor(PaletteEntry initial,
                                                        std::span<const PaletteEntry, kCustomColors> custom) override;

 private:
  const DialogOwner& owner_;
};

}  // namespace quillhue
