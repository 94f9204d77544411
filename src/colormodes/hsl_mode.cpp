#include "colormodes/color_models.h"
#include "colormodes/hue.h"

namespace quillhue {

namespace {

// The double hexcone model of Foley and van Dam, "Computer Graphics", in integers.
class HSLmode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    const std::int32_t greatest = greatestChannel(color);
    const std::int32_t least = leastChannel(color);
    const std::int32_t sum = greatest + least;
    if (greatest == least) {
      return {0, 0, greatest};
    }
    return {hueOf(color), (greatest - least) * 255 / (sum >= 256 ? 510 - sum : sum), sum / 2};
  }

  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const auto [hue, saturation, lightness] = values;
    const std::int32_t greatest =
        lightness > 127 ? (255 - saturation) * lightness / 255 + saturation : (saturation + 255) * lightness / 255;
    const std::int32_t least = 2 * lightness - greatest;
    const HueAngle angle(hue);
    // kept on purpose: a sector here is a sixth of 359 degrees, although hueOf uses 60 degrees.
    const auto risen = [spread = greatest - least, least](std::int32_t degrees) {
      return static_cast<std::uint8_t>(least + 6 * spread * degrees / 359);
    };
    const auto full = static_cast<std::uint8_t>(greatest);
    const auto rest = static_cast<std::uint8_t>(least);
    return angle.isFirstHalf() ? colorInThird(hue, full, risen(angle.fromStart), rest)
                               : colorInThird(hue, risen(angle.toEnd), full, rest);
  }
};

}  // namespace

constinit const ColorModel kHslModel{
    "HSL", {{{"hue", kHueRange}, {"saturation", kByteRange}, {"lightness", kByteRange}}}, makeColorMode<HSLmode>};

}  // namespace quillhue
