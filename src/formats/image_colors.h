#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "core/counted_color.h"
#include "core/palette.h"
#include "formats/color_set.h"
#include "formats/true_color_bitmap.h"
#include "formats/work_image.h"

namespace quillhue {

/// The distinct colors of a true-color image, and the palettes that can be made from them. Colors are ordered by green,
/// then blue, then red.
///
/// A set with one bit a color records which colors occur. Counting and exact palettes therefore keep no pixels in
/// memory; the constructor reads the image once. A reduced palette reads the image again and keeps the pixels that it
/// uses, four bytes each. The fourth byte of a pixel counts as part of its color; if not all fourth bytes are the same,
/// all pixels are sorted in memory. Every operation may throw std::bad_alloc.
class ImageColors {
 public:
  explicit ImageColors(const TrueColorBitmap& bitmap);
  /// Ignores transparent pixels. The image must outlive this object.
  explicit ImageColors(const WorkImage& image);

  [[nodiscard]] std::uint64_t distinctCount() const { return distinctCount_; }

  /// Returns the colors with their numbers of pixels, in order. Colors that differ only in the fourth byte are one.
  [[nodiscard]] std::vector<CountedColor> counts() const;

  /// Returns `size` entries: the first colors in order, then the blank color.
  [[nodiscard]] Palette exactPalette(std::int32_t size, PaletteEntry blank) const;
  /// Returns `size` entries (1 or more), made by median cut. The pixels are thinned first, so that no color keeps much
  /// more than its share. Entries that the cut leaves empty get the blank color.
  [[nodiscard]] Palette reducedPalette(std::int32_t size, PaletteEntry blank) const;

 private:
  using VisitWords = std::function<void(std::span<const ColorWord>)>;
  using ForEachBlock = std::function<void(const VisitWords&)>;
  explicit ImageColors(ForEachBlock forEachBlock);

  using VisitColor = std::function<void(ColorWord color, std::uint64_t pixels)>;
  void forEachColor(const VisitColor& visit) const;
  [[nodiscard]] std::vector<std::uint32_t> sortedPixels() const;
  [[nodiscard]] std::vector<std::uint32_t> pixelsOfEachColor() const;

  // Passes all pixels to the visitor, block by block.
  ForEachBlock forEachBlock_;
  std::uint64_t pixelCount_ = 0;
  // The places of all colors in the order.
  ColorSet occurring_;
  std::uint64_t distinctCount_ = 0;
  // The fourth byte that all pixels share, at its place in the word.
  ColorWord fourthByte_ = 0;
  bool fourthByteDiffers_ = false;
};

}  // namespace quillhue
