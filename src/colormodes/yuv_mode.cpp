#include "colormodes/yuv_mode.h"

#include "colormodes/color_models.h"

namespace quillhue {

ChannelValues YUVmode::toValues(const PaletteEntry& color) const {
  const auto [red, green, blue] = color;
  return {lumaOf(color), (-14713 * red - 28886 * green + 43600 * blue) / 87200,
          (61500 * red - 51499 * green - 10001 * blue) / 123000};
}

PaletteEntry YUVmode::toColor(const ChannelValues& values) const {
  const auto [luma, u, v] = values;
  // 872 and 1230 undo the scaling to +-127.
  const auto ofU = [value = u](std::int32_t factor) { return value * factor / 100000 * 872 / 1000; };
  const auto ofV = [value = v](std::int32_t factor) { return value * factor / 100000 * 1230 / 1000; };
  return {clampToByte(luma + ofV(113983)), clampToByte(luma + ofU(-39465) + ofV(-58060)),
          clampToByte(luma + ofU(203211))};
}

constinit const ColorModel kYcbcrModel{
    "YCbCr", {{{"luma", kByteRange}, {"Cb", kChromaRange}, {"Cr", kChromaRange}}}, makeColorMode<YUVmode>};
constinit const ColorModel kYuvModel{
    "YUV", {{{"luma", kByteRange}, {"U", kChromaRange}, {"V", kChromaRange}}}, makeColorMode<YUVmode>};

}  // namespace quillhue
