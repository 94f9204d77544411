#include "colormodes/color_models.h"
#include "colormodes/hue.h"

namespace quillhue {

namespace {

// The hexcone model of A. R. Smith, "Color Gamut Transform Pairs" (1978), in integers.
class HSVmode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    const std::int32_t value = greatestChannel(color);
    const std::int32_t spread = value - leastChannel(color);
    return {hueOf(color), value == 0 ? 0 : spread * 255 / value, value};
  }

  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const std::int32_t hue = values[0];
    const std::int32_t saturation = values[1];
    const std::int32_t value = values[2];
    const std::int32_t fraction = hue * 255 / 60 - 255 * (hue / 60);
    const auto faded = [value](std::int32_t amount) { return static_cast<std::uint8_t>((255 - amount) * value / 255); };
    const std::uint8_t full = faded(0);
    const std::uint8_t least = faded(saturation);
    if (HueAngle(hue).isFirstHalf()) {
      return colorInThird(hue, full, faded(saturation * (255 - fraction) / 255), least);
    }
    return colorInThird(hue, faded(saturation * fraction / 255), full, least);
  }
};

}  // namespace

constinit const ColorModel kHsvModel{
    "HSV", {{{"hue", kHueRange}, {"saturation", kByteRange}, {"value", kByteRange}}}, makeColorMode<HSVmode>};

}  // namespace quillhue
