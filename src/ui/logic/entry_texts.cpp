#include "ui/logic/entry_texts.h"

#include <cstddef>
#include <string_view>

#include "colormodes/color_models.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

std::string textOf(const ChannelDescriptions& channels, const ChannelValues& values) {
  std::string text;
  for (std::size_t i = 0; i < channels.size(); ++i) {
    text += text.empty() ? "" : ", ";
    text += std::string(channels[i].name) + ' ' + std::to_string(values[i]);
  }
  return text;
}

template <typename Image>
bool contains(const Image& image, Point point) {
  return Rect{0, 0, image.width(), image.height()}.contains(point);
}

std::string pixelText(Point point, std::optional<std::size_t> index, PaletteEntry color) {
  return std::to_string(point.x) + ", " + std::to_string(point.y) + ": " +
         (index ? "index " + std::to_string(*index) + ", " : "") + hexTextOf(color);
}

}  // namespace

std::string entryStatusText(const Palette& palette, std::int32_t index) {
  return index < 0 || index >= palette.getSize() ? "" : std::to_string(index) + ": " + hexTextOf(palette.entry(index));
}

std::string numbersText(PaletteEntry color) { return textOf(kRgbModel.channels, {color.red, color.green, color.blue}); }

std::string numbersText(const ColorMode& mode, const ChannelDescriptions& channels) {
  return textOf(channels, {mode.getLeftValue(), mode.getMiddleValue(), mode.getRightValue()});
}

std::string entryTooltip(const Palette& palette, std::int32_t index, const std::string& numbers,
                         const Palette* preview) {
  std::string text = entryStatusText(palette, index) + '\n' + numbers;
  if (preview != nullptr && preview->entry(index) != palette.entry(index)) {
    const PaletteEntry shown = preview->entry(index);
    text += "\nPreview: " + hexTextOf(shown) + '\n' + numbersText(shown);
  }
  return text;
}

std::string pixelTooltip(const WorkImage& image, Point point) {
  if (!contains(image, point)) {
    return {};
  }
  const auto pixel = image.row(point.y).subspan(static_cast<std::size_t>(point.x) * image.bytesPerPixel());
  if (const auto& palette = image.palette()) {
    return pixelText(point, pixel[0], pixel[0] < palette->getSize() ? palette->entry(pixel[0]) : PaletteEntry{});
  }
  return pixelText(point, std::nullopt, {pixel[2], pixel[1], pixel[0]});
}

std::string pixelTooltip(const RemappedImage& image, PaletteEntry blank, Point point) {
  if (!contains(image, point)) {
    return {};
  }
  const std::size_t row = static_cast<std::size_t>(point.y) * paddedRowLength(image.width());
  const std::size_t index = image.rows()[row + static_cast<std::size_t>(point.x)];
  return pixelText(point, index, index < image.colors().size() ? image.colors()[index] : blank);
}

std::string entryName(const Palette& palette, std::int32_t index) {
  return "Entry " + std::to_string(index) + ", " + hexTextOf(palette.entry(index));
}

std::string imageName(std::optional<Size> size, bool isRemapped) {
  if (!size) {
    return "No image";
  }
  return "Image, " + std::to_string(size->width) + " by " + std::to_string(size->height) + " pixels" +
         (isRemapped ? ", remapped" : "");
}

}  // namespace quillhue
