#pragma once

#include <span>

#include "core/palette_entry.h"
#include "remap/eight_colors.h"

namespace quillhue {

/// Colors that lie in a plane or on a line, of which it knows two kinds: greys, and colors that are equal in a channel.
/// Errors that such colors can't cancel drive targets far away from the cube. This class brings them back.
class FlatColors {
 public:
  /// Takes at least one color.
  explicit FlatColors(std::span<const PaletteEntry> colors);

  [[nodiscard]] bool areFlat() const { return areGreys_ || areEqual_; }

  /// Returns targets nearer to the colors, or the same if the colors are not flat. All true squared distances from a
  /// target change by the same amount.
  [[nodiscard]] EightColors flattened(const EightColors& targets) const;

 private:
  bool areGreys_ = false;
  // Whether the colors are equal in a channel.
  bool areEqual_ = false;
  // All bits in the channels in which the colors differ.
  EightColors differences_;
  // The colors' number in the other channels.
  EightColors equals_;
};

}  // namespace quillhue
