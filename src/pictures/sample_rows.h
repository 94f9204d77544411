#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "pictures/picture_decoder.h"

namespace quillhue {

/// The samples of a pixel, before an alpha sample.
enum class SampleKind : std::uint8_t {
  /// One: an index into a palette.
  index,
  /// One: black at 0.
  gray,
  /// Three: red, green, blue.
  color,
  /// Three: blue, green, red.
  reversedColor,
  /// Four: cyan, magenta, yellow and black ink, none at 0.
  ink,
};

/// How decoded rows are stored.
struct SampleFormat {
  SampleKind kind = SampleKind::gray;
  bool hasAlpha = false;
  /// Of a sample: 1, 2, 4 (the left pixel in the highest bits), 8 or 16.
  unsigned bits = 8;
  /// The greatest sample.
  std::uint16_t maximum = 255;
  /// The order of the bytes of a sample of 16 bits.
  bool isLittleEndian = false;

  [[nodiscard]] std::size_t samplesPerPixel() const;
  /// Bytes of a row of `width` pixels.
  [[nodiscard]] std::size_t rowLength(std::size_t width) const { return (width * samplesPerPixel() * bits + 7) / 8; }
};

/// The palette of a format of indexes: 256 entries, and how much of a pixel each covers, 255 for all of it.
struct PictureColors {
  Palette palette;
  std::array<std::uint8_t, 256> coverage;
};

/// A color whose pixels are fully transparent, in samples up to `maximum`.
struct TransparentColor {
  std::array<std::uint16_t, 3> samples{};
  std::uint16_t maximum = 255;
};

/// The columns to which the pixels of a row go: those of one pass of an interlaced image, otherwise all.
struct Columns {
  std::size_t first = 0;
  std::size_t step = 1;
};

/// Makes an image of rows of samples.
class SampleRows {
 public:
  /// A size within the limits; `colors` for a format of indexes. Transparent pixels are blended with `blank`. Throws
  /// std::bad_alloc.
  SampleRows(std::int32_t width, std::int32_t height, SampleFormat format, PaletteEntry blank,
             const std::optional<PictureColors>& colors = {});

  void setTransparentColor(const TransparentColor& color);

  /// Puts pixels into a row of the image: as many as there are columns left. `bytes` holds them all.
  void store(std::int32_t y, PictureBytes bytes, Columns columns = {});

  [[nodiscard]] WorkImage take() { return std::move(image_); }

 private:
  void unpack(PictureBytes bytes, std::size_t count);
  [[nodiscard]] PaletteEntry colorOf(std::span<const std::uint16_t> samples) const;
  [[nodiscard]] std::uint8_t coverageOf(std::span<const std::uint16_t> samples) const;
  void storeIndexes(std::int32_t y, Columns columns);
  void storeColors(std::int32_t y, Columns columns);

  SampleFormat format_;
  PaletteEntry blank_;
  WorkImage image_;
  std::optional<TransparentColor> transparent_;
  // Each sample as a byte.
  std::vector<std::uint8_t> scaled_;
  // Of the row that is being stored.
  std::vector<std::uint16_t> samples_;
};

}  // namespace quillhue
