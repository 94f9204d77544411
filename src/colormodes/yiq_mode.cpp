#include "colormodes/color_models.h"

namespace quillhue {

namespace {

// The luma and chroma of NTSC. The coefficients are scaled by a million, then divided by twice the sum of the positive
// ones, so that I and Q reach about +-127.
class YIQmode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    const auto [red, green, blue] = color;
    return {lumaOf(color), (595716 * red - 274453 * green - 321263 * blue) / 1191400,
            (211456 * red - 522591 * green + 311135 * blue) / 1045200};
  }

  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const std::int32_t luma = values[0];
    const std::int32_t i = values[1];
    const std::int32_t q = values[2];
    // 11914 and 10452 undo the scaling to +-127.
    const auto channel = [luma, i, q](std::int32_t ofI, std::int32_t ofQ) {
      return clampToByte(luma + i * ofI / 10000 * 11914 / 10000 + q * ofQ / 10000 * 10452 / 10000);
    };
    return {channel(9563, 6210), channel(-2721, -6474), channel(-11070, 17046)};
  }
};

}  // namespace

constinit const ColorModel kYiqModel{
    "YIQ", {{{"luma", kByteRange}, {"I", kChromaRange}, {"Q", kChromaRange}}}, makeColorMode<YIQmode>};

}  // namespace quillhue
