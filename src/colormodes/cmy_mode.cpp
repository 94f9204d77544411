#include "colormodes/color_models.h"

namespace quillhue {

namespace {

// The complements of red, green and blue.
class CMYmode final : public ColorMode {
 public:
  using ColorMode::ColorMode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    return {255 - color.red, 255 - color.green, 255 - color.blue};
  }
  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    const auto byte = [&](std::size_t channel) { return static_cast<std::uint8_t>(255 - values[channel]); };
    return {byte(0), byte(1), byte(2)};
  }
  [[nodiscard]] ChannelValues currentValues() const override { return toValues(entryColor()); }
};

}  // namespace

constinit const ColorModel kCmyModel{
    "CMY", {{{"cyan", kByteRange}, {"magenta", kByteRange}, {"yellow", kByteRange}}}, makeColorMode<CMYmode>};

}  // namespace quillhue
