#include <algorithm>
#include <new>
#include <vector>

#include "formats/image_limits.h"
#include "formats/images/image_loaders.h"
#include "formats/images/pcx_runs.h"
#include "formats/readers/palette_reader.h"

namespace quillhue {

namespace {

constexpr std::uint8_t kVersion2 = 2;
constexpr std::uint8_t kVersion5 = 5;
constexpr std::uint64_t kPixels = 128;
constexpr std::uint64_t kPaletteLength = 768;

bool matches(ByteSource& source) { return source.u8(0) == 0x0A; }

// Reads the palette from the last bytes of the file. Bytes missing from a shorter file are zero.
Palette readPalette(ByteSource& source) {
  std::vector<std::uint8_t> bytes(kPaletteLength);
  const auto stored = static_cast<std::size_t>(std::min(source.size(), kPaletteLength));
  source.read(source.size() - stored, std::span(bytes).last(stored));
  return paletteFromTriples(bytes, 256);
}

// Each row has its reds, then its greens, then its blues.
void readPlanes(PcxRuns& runs, WorkImage& image) {
  const auto width = static_cast<std::size_t>(image.width());
  std::vector<std::uint8_t> planes(3 * width);
  std::size_t decoded = planes.size();
  for (std::int32_t y = 0; y < image.height() && decoded == planes.size(); ++y) {
    decoded = runs.decode(planes);
    if (decoded == 0) {
      return;
    }
    std::ranges::fill(std::span(planes).subspan(decoded), std::uint8_t{0});
    const auto row = image.row(y);
    for (std::size_t x = 0; x < width; ++x) {
      row[3 * x] = planes[2 * width + x];
      row[3 * x + 1] = planes[width + x];
      row[3 * x + 2] = planes[x];
    }
  }
}

ImageResult load(ByteSource& source) {
  const std::uint8_t version = source.u8(1);
  if ((version != kVersion2 && version != kVersion5) || source.u8(2) != 1) {
    return std::unexpected(Failure::unrecognisedType);
  }
  if (version != kVersion5) {
    return std::unexpected(Failure::pcxDepth);
  }
  const std::int32_t width = source.u16le(8) + 1;
  const std::int32_t height = source.u16le(10) + 1;
  if (const auto failure = checkImageSize(width, height)) {
    return std::unexpected(*failure);
  }
  const bool hasPlanes = source.u8(65) == 3;
  std::optional<Palette> palette;
  if (!hasPlanes) {
    palette = readPalette(source);
  }
  WorkImage image(width, height, std::move(palette));
  PcxRuns runs(source, kPixels);
  if (!hasPlanes) {
    runs.decode(image.pixels());
    return image;
  }
  try {
    readPlanes(runs, image);
  } catch (const std::bad_alloc&) {
    return std::unexpected(Failure::noMemoryToDeinterleave);
  }
  return image;
}

}  // namespace

constinit const ImageLoader kPcxLoader{"pcx", "*.pcx", matches, load};

}  // namespace quillhue
