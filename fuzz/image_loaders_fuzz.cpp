// The input is an image file, or a bitmap of the clipboard if it begins with the size of its header.

#include <algorithm>
#include <utility>
#include <vector>

#include "formats/bitmap_writer.h"
#include "formats/image_limits.h"
#include "formats/images/image_loaders.h"
#include "formats/notes/reading_note.h"
#include "formats/standard/standard_formats.h"
#include "fuzz_target.h"

namespace {

// An image with a palette comes back from a bitmap of it.
void checkBitmap(const quillhue::WorkImage& image, const quillhue::Palette& palette) {
  using namespace quillhue;
  const std::size_t stride = paddedRowLength(image.width());
  std::vector<std::uint8_t> rows(stride * static_cast<std::size_t>(image.height()));
  for (std::int32_t y = 0; y < image.height(); ++y) {
    std::ranges::copy(image.row(y), rows.begin() + y * static_cast<std::ptrdiff_t>(stride));
  }
  MemorySource bitmap(composeBitmap({image.width(), image.height(), rows}, palette, {}));
  const ImageResult again = loadStandardImage(bitmap, {});
  require(again && again->palette() == palette && std::ranges::equal(again->pixels(), image.pixels()),
          "the image of its bitmap");
}

void check(const quillhue::ImageResult& image) {
  using namespace quillhue;
  if (!image) {
    require(!textOf(image.error()).empty(), "a text for every failure");
    return;
  }
  require(!checkImageSize(image->width(), image->height()), "a size within the limits");
  const auto pixels = static_cast<std::size_t>(image->width()) * static_cast<std::size_t>(image->height());
  require(image->pixels().size() == pixels * image->bytesPerPixel(), "as many bytes as pixels");
  const auto& palette = image->palette();
  if (palette && palette->getSize() == 16 && pixels < 4096) {
    require(std::ranges::all_of(image->pixels(), [](std::uint8_t index) { return index < 16; }), "4-bit indexes");
  }
  if (palette && pixels < 4096) {
    checkBitmap(*image, *palette);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillhue;
  std::vector content(data, data + size);
  // A bitmap of the clipboard has no signature. It begins with the size of its header.
  if (size > 0 && (data[0] == 40 || data[0] == 108 || data[0] == 124)) {
    check(loadClipboardImage(std::move(content)));
    return 0;
  }
  MemorySource source(std::move(content));
  const ImageResult image = loadImage(source);
  check(image);
  const auto note = noteImageReading(source, image.has_value());
  require(!note || note->standardReads || !note->text.empty(), "a text or a way out in every note");
  check(loadStandardImage(source, {}));
  return 0;
}
