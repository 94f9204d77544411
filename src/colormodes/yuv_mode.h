#pragma once

#include "colormodes/color_mode.h"

namespace quillhue {

/// Luma and the differences of blue and red from it. The coefficients of ITU-R BT.601, scaled by a hundred thousand,
/// are divided by twice the sum of the positive ones, so that the extreme colors have about +-127; scaled so, U and V
/// are the same as Cb and Cr.
class YUVmode : public ColorMode {
 public:
  using ColorMode::ColorMode;

 protected:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override;
  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override;
};

}  // namespace quillhue
