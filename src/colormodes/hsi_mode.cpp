#include "colormodes/color_models.h"
#include "colormodes/hue.h"

namespace quillhue {

namespace {

// Hue, saturation and intensity of Gonzalez and Woods, "Digital Image Processing". A rational function replaces the
// ratio of cosines that splits the excess between two channels. It is exact at both ends of a sector.
class HSImode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    const std::int32_t intensity = channelSum(color, kAllChannels) / 3;
    const std::int32_t saturation = intensity == 0 ? 0 : 255 - 255 * leastChannel(color) / intensity;
    return {hueOf(color), saturation, intensity};
  }

  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const auto [hue, saturation, intensity] = values;
    const std::int32_t product = saturation * intensity;
    const std::int32_t least = intensity - product / 255;
    const HueAngle angle(hue);
    const std::int32_t degrees = angle.isFirstHalf() ? angle.fromStart : angle.toEnd;
    // The stronger channel gets 180 parts of the excess, the weaker one 3 parts per degree.
    const auto raised = [product, least, degrees](std::int32_t parts) {
      return clampToByte(least + parts * product / (255 * (degrees + 60)));
    };
    const auto rest = static_cast<std::uint8_t>(least);
    return angle.isFirstHalf() ? colorInThird(hue, raised(180), raised(3 * degrees), rest)
                               : colorInThird(hue, raised(3 * degrees), raised(180), rest);
  }
};

}  // namespace

constinit const ColorModel kHsiModel{
    "HSI", {{{"hue", kHueRange}, {"saturation", kByteRange}, {"intensity", kByteRange}}}, makeColorMode<HSImode>};

}  // namespace quillhue
