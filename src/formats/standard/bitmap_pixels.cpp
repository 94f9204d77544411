#include "formats/standard/bitmap_pixels.h"

#include <span>
#include <utility>
#include <vector>

#include "core/coverage.h"
#include "formats/standard/bitmap_runs.h"
#include "formats/standard/color_field.h"

namespace quillhue {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Decodes a row of indexes of 1, 2, 4 or 8 bits. The left pixel is in a byte's highest bits.
void decodeIndexes(Bytes stored, unsigned bits, std::span<std::uint8_t> row) {
  const std::size_t perByte = 8 / bits;
  for (std::size_t x = 0; x < row.size(); ++x) {
    const auto shift = static_cast<unsigned>((perByte - 1 - x % perByte) * bits);
    row[x] = static_cast<std::uint8_t>(stored[x / perByte] >> shift & ((1U << bits) - 1));
  }
}

// Decodes rows of little-endian pixels of 16, 24 or 32 bits.
class ColorRows {
 public:
  ColorRows(const BitmapHeader& header, PaletteEntry blank)
      : red_(header.masks[0]),
        green_(header.masks[1]),
        blue_(header.masks[2]),
        alpha_(header.masks[3]),
        bytes_(header.bits / 8),
        blank_(blank) {}

  [[nodiscard]] bool hasAlpha() const { return alpha_.isPresent(); }

  void decode(Bytes stored, std::int32_t y, WorkImage& image) const {
    const auto row = image.row(y);
    for (std::size_t x = 0; x < row.size() / 3; ++x) {
      std::uint32_t pixel = 0;
      for (std::size_t i = bytes_; i-- > 0;) {
        pixel = pixel << 8 | stored[bytes_ * x + i];
      }
      PaletteEntry color{red_.valueIn(pixel), green_.valueIn(pixel), blue_.valueIn(pixel)};
      if (const std::uint8_t coverage = alpha_.valueIn(pixel); hasAlpha() && coverage < kHalfCovered) {
        color = blended(color, blank_, coverage);
        image.transparentRow(y)[x] = 1;
      }
      row[3 * x] = color.blue;
      row[3 * x + 1] = color.green;
      row[3 * x + 2] = color.red;
    }
  }

 private:
  ColorField red_;
  ColorField green_;
  ColorField blue_;
  ColorField alpha_;
  std::size_t bytes_;
  PaletteEntry blank_;
};

std::expected<std::optional<Palette>, Failure> readImagePalette(ByteSource& source, const BitmapHeader& header) {
  if (header.bits > 8) {
    return std::nullopt;
  }
  const auto table = readColorTable(source, header);
  if (!table) {
    return std::unexpected(table.error());
  }
  return resizedCopy(*table, header.bits <= 4 ? 16 : 256, {});
}

}  // namespace

ImageResult readBitmapPixels(ByteSource& source, const BitmapHeader& header, PaletteEntry blank) {
  const std::uint64_t rowBits = static_cast<std::uint64_t>(header.width) * header.bits;
  const std::uint64_t stride = (rowBits + 31) / 32 * 4;
  const bool isCompressed = header.compression != BitmapHeader::Compression::none;
  // The last row's padding may be missing.
  const std::uint64_t end = header.pixels + stride * static_cast<std::uint64_t>(header.height - 1) + (rowBits + 7) / 8;
  if (!isCompressed && end > source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  auto palette = readImagePalette(source, header);
  if (!palette) {
    return std::unexpected(palette.error());
  }
  WorkImage image(header.width, header.height, *std::move(palette));
  const auto placeOf = [&](std::int32_t y) { return header.isTopDown ? y : header.height - 1 - y; };
  if (isCompressed) {
    const bool isComplete = decodeBitmapRuns(source, header, [&](std::int32_t y) { return image.row(placeOf(y)); });
    return isComplete ? ImageResult(std::move(image)) : std::unexpected(Failure::pictureDamaged);
  }
  const ColorRows colors(header, blank);
  if (colors.hasAlpha()) {
    image.addTransparency();
  }
  std::vector<std::uint8_t> stored(static_cast<std::size_t>(stride));
  for (std::int32_t y = 0; y < header.height; ++y) {
    source.read(header.pixels + stride * static_cast<std::uint64_t>(y), stored);
    if (header.bits <= 8) {
      decodeIndexes(stored, header.bits, image.row(placeOf(y)));
    } else {
      colors.decode(stored, placeOf(y), image);
    }
  }
  return image;
}

}  // namespace quillhue
