#include <algorithm>
#include <new>
#include <vector>

#include "formats/image_limits.h"
#include "formats/images/image_loaders.h"
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

// A byte of 192 or more contains in its low six bits the number of times that the next byte is repeated. Returns the
// number of bytes decoded, which is smaller than requested if the file ends early.
std::size_t decodeRuns(ByteSource& source, const std::span<std::uint8_t> pixels) {
  std::span<std::uint8_t> out = pixels;
  for (std::uint64_t offset = kPixels; !out.empty() && offset < source.size(); ++offset) {
    std::uint8_t value = source.u8(offset);
    std::size_t count = 1;
    if (value >= 192) {
      count = std::min<std::size_t>(value & 63, out.size());
      value = source.u8(++offset);
    }
    std::ranges::fill(out.first(count), value);
    out = out.subspan(count);
  }
  return pixels.size() - out.size();
}

// Each row has its reds, then its greens, then its blues. Only rows that start within the first `decoded` bytes are
// converted.
void interleaveRows(WorkImage& image, std::size_t decoded) {
  const auto width = static_cast<std::size_t>(image.width());
  std::vector<std::uint8_t> planes(3 * width);
  for (std::size_t start = 0; start < decoded; start += planes.size()) {
    const auto row = image.pixels().subspan(start, planes.size());
    std::ranges::copy(row, planes.begin());
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
  const std::size_t decoded = decodeRuns(source, image.pixels());
  if (!hasPlanes) {
    return image;
  }
  try {
    interleaveRows(image, decoded);
  } catch (const std::bad_alloc&) {
    return std::unexpected(Failure::noMemoryToDeinterleave);
  }
  return image;
}

}  // namespace

constinit const ImageLoader kPcxLoader{"pcx", "*.pcx", matches, load};

}  // namespace quillhue
