#include "colormodes/color_models.h"
#include "colormodes/yuv_mode.h"

namespace quillhue {

namespace {

// The luma and chroma of SECAM. Dr is V with the opposite sign.
class YDbDrmode final : public YUVmode {
 public:
  using YUVmode::YUVmode;

 private:
  [[nodiscard]] ChannelValues toValues(const PaletteEntry& color) const override {
    return turned(YUVmode::toValues(color));
  }
  [[nodiscard]] PaletteEntry toColor(const ChannelValues& values) const override {
    return YUVmode::toColor(turned(values));
  }
  static ChannelValues turned(const ChannelValues& values) { return {values[0], values[1], -values[2]}; }
};

}  // namespace

constinit const ColorModel kYdbdrModel{
    "YDbDr", {{{"luma", kByteRange}, {"Db", kChromaRange}, {"Dr", kChromaRange}}}, makeColorMode<YDbDrmode>};

}  // namespace quillhue
