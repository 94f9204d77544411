#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "pictures/picture_decoder.h"

namespace quillhue {

/// The color samples of a pixel; an alpha sample follows them.
enum class SampleKind : std::uint8_t {
  /// One sample: an index into a palette.
  index,
  /// One sample: 0 is black.
  gray,
  /// Three samples: red, green, blue.
  color,
  /// Three samples: blue, green, red.
  reversedColor,
  /// Four samples: cyan, magenta, yellow and black ink; 0 is no ink.
  ink,
};

/// The storage format of decoded rows.
struct SampleFormat {
  SampleKind kind = SampleKind::gray;
  bool hasAlpha = false;
  /// Bits a sample: 1, 2, 4 (the left pixel in the highest bits), 8 or 16.
  unsigned bits = 8;
  /// Maximum value of a sample.
  std::uint16_t maximum = 255;
  /// Byte order of 16-bit samples.
  bool isLittleEndian = false;

  [[nodiscard]] std::size_t samplesPerPixel() const;
  /// Returns the bytes of a row of `width` pixels.
  [[nodiscard]] std::size_t rowLength(std::size_t width) const { return (width * samplesPerPixel() * bits + 7) / 8; }
};

/// The palette of an image of indexes: 256 entries, and the coverage (alpha) of each, 255 for opaque.
struct PictureColors {
  Palette palette;
  std::array<std::uint8_t, 256> coverage;
};

/// A color whose pixels are fully transparent. Its samples are at most `maximum`.
struct TransparentColor {
  std::array<std::uint16_t, 3> samples{};
  std::uint16_t maximum = 255;
};

/// The image columns of the pixels in a row: those of one pass of an interlaced image, or all.
struct Columns {
  std::size_t first = 0;
  std::size_t step = 1;
};

/// Converts rows of samples to an image.
class SampleRows {
 public:
  /// The size must be within the limits of image_limits.h. Images of indexes need `colors`. Transparent pixels are
  /// blended with `blank`. Throws std::bad_alloc.
  SampleRows(std::int32_t width, std::int32_t height, SampleFormat format, PaletteEntry blank,
             const std::optional<PictureColors>& colors = {});

  void setTransparentColor(const TransparentColor& color);

  /// Stores pixels in row `y` of the image, one for each of its `columns`. `bytes` contains all of them.
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
  // The byte for each sample value.
  std::vector<std::uint8_t> scaled_;
  // Samples of the row that is being stored.
  std::vector<std::uint16_t> samples_;
};

}  // namespace quillhue
