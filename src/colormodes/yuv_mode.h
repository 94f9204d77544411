#pragma once

#include "colormodes/color_mode.h"

namespace quillhue {

/// Luma, and the differences of blue and red from it. The coefficients of ITU-R BT.601 are scaled by a hundred
/// thousand, then divided by twice the sum of the positive ones, so that U and V reach about +-127. With this scaling,
/// U and V equal Cb and Cr.
class YUVmode : public ColorMode {
 public:
  using ColorMode::ColorMode;

 protected:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override;
  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override;
};

}  // namespace quillhue
