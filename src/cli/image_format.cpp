#include "cli/image_format.h"

#include <algorithm>
#include <array>

#include "cli/arguments.h"
#include "cli/command_line.h"
#include "core/utf8.h"
#include "formats/bitmap_writer.h"
#include "formats/readers/palette_reader.h"
#include "pictures/png_encoder.h"

namespace quillhue::cli {

namespace {

using Bytes = std::vector<std::uint8_t>;

IndexedPixels pixelsOf(const RemappedImage& image) { return {image.width(), image.height(), image.rows()}; }

std::expected<Bytes, Failure> composeBmp(const ImageOutput& output) {
  return composeBitmap(pixelsOf(output.image), output.palette, output.blank);
}

std::expected<Bytes, Failure> composeIndexedPng(const ImageOutput& output) {
  return composePng({pixelsOf(output.image), output.image.colors(), output.transparent});
}

}  // namespace

std::span<const ImageFormat> imageFormats() {
  static const std::array<ImageFormat, 2> kFormats{
      {{.name = "bmp", .endings = {".BMP", ".DIB"}, .hasTransparency = false, .compose = composeBmp},
       {.name = "png", .endings = {".PNG"}, .hasTransparency = true, .compose = composeIndexedPng}}};
  return kFormats;
}

std::vector<std::string> imageFormatNames() { return namesOf(imageFormats()); }

const ImageFormat& chooseImageFormat(const std::string& format, const std::string& file) {
  const bool isFile = !file.empty() && file != "-";
  for (const ImageFormat& known : imageFormats()) {
    const bool endsSo = std::ranges::any_of(
        known.endings, [&](std::string_view ending) { return nameEndsWith(fromUtf8(file), ending); });
    if (format.empty() ? endsSo || !isFile : known.name == format) {
      return known;
    }
  }
  refuseUsage("--format", "is needed where OUT does not end in .bmp, .dib or .png");
}

}  // namespace quillhue::cli
