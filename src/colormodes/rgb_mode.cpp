#include "colormodes/color_models.h"

namespace quillhue {

namespace {

class RGBmode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    return {color.red, color.green, color.blue};
  }
  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const auto byte = [&](std::size_t channel) { return static_cast<std::uint8_t>(values[channel]); };
    return {byte(0), byte(1), byte(2)};
  }
  [[nodiscard]] ChannelValues currentValues() const override { return toValues(entryColor()); }
};

}  // namespace

constinit const ColorModel kRgbModel{
    "RGB", {{{"red", kByteRange}, {"green", kByteRange}, {"blue", kByteRange}}}, makeColorMode<RGBmode>};

}  // namespace quillhue
