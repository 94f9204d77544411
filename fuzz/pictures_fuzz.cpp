// The input is an image file for a decoder. The checksums of a PNG file are corrected, so that more of it is decoded.

#include <algorithm>
#include <vector>

#include "formats/image_limits.h"
#include "fuzz_target.h"
#include "pictures/jpeg_file.h"
#include "pictures/picture_decoder.h"
#include "pictures/png_file.h"

namespace {

using namespace quillhue;

constexpr std::int64_t kMostPixels = std::int64_t{1} << 18;

void correctChecksums(std::vector<std::uint8_t>& file) {
  for (std::size_t at = 8; at + 12 <= file.size();) {
    const std::size_t length = std::size_t{file[at]} << 24 | std::size_t{file[at + 1]} << 16 |
                               std::size_t{file[at + 2]} << 8 | std::size_t{file[at + 3]};
    if (length > file.size() - at - 12) {
      return;
    }
    const std::uint32_t checksum = pngChecksum(std::span(file).subspan(at + 4, length + 4));
    at += 8 + length;
    for (int shift = 24; shift >= 0; shift -= 8) {
      file[at++] = static_cast<std::uint8_t>(checksum >> shift);
    }
  }
}

// A large image takes long, whatever the file contains.
template <typename Header>
bool isLarge(const Header& header) {
  return header && std::int64_t{header->width} * header->height > kMostPixels;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector file(data, data + size);
  const PictureKind* const kind = findPictureKind(file);
  if (kind == nullptr) {
    return 0;
  }
  if (kind == &kPngPicture) {
    correctChecksums(file);
  }
  if ((kind == &kPngPicture && isLarge(readPngFile(file))) ||
      (kind == &kJpegPicture && isLarge(readJpegHeader(file)))) {
    return 0;
  }
  const PictureResult image = kind->decode(file, {1, 2, 3});
  if (!image) {
    require(!textOf(image.error()).empty(), "a text for every failure");
    return 0;
  }
  require(!checkImageSize(image->width(), image->height()), "a size within the limits");
  for (std::int32_t y = 0; !image->palette() && image->hasTransparency() && y < image->height(); ++y) {
    require(std::ranges::all_of(image->transparentRow(y), [](std::uint8_t mark) { return mark <= 1; }), "marks 0 or 1");
  }
  return 0;
}
