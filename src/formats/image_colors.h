#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "core/palette.h"
#include "formats/true_color_bitmap.h"
#include "formats/work_image.h"

namespace quillhue {

/// The different colors of a true-color image, and the palettes that can be made of them. Colors are in the order of
/// green, then blue, then red.
///
/// One bit a color tells which occur, so counting and exact palettes hold no pixels: the image is read once, to
/// construct this. A reduced palette reads it once more and holds the pixels that it considers, four bytes each. An
/// image whose fourth bytes differ, which count as part of a color, is sorted in memory. All of it may throw
/// std::bad_alloc.
class ImageColors {
 public:
  explicit ImageColors(const TrueColorBitmap& bitmap);
  /// Transparent pixels do not count. The image outlives this.
  explicit ImageColors(const WorkImage& image);

  [[nodiscard]] std::uint64_t distinctCount() const { return distinctCount_; }

  /// `size` entries: the first colors in order, and the blank color where there are no more.
  [[nodiscard]] Palette exactPalette(std::int32_t size, PaletteEntry blank) const;
  /// `size` entries (1 or more) by median cut over pixels thinned so that no color keeps much more than its share;
  /// entries that the cut does not fill are in the blank color.
  [[nodiscard]] Palette reducedPalette(std::int32_t size, PaletteEntry blank) const;

 private:
  using VisitWords = std::function<void(std::span<const ColorWord>)>;
  using ForEachBlock = std::function<void(const VisitWords&)>;
  explicit ImageColors(ForEachBlock forEachBlock);

  using VisitColor = std::function<void(ColorWord color, std::uint64_t pixels)>;
  void forEachColor(const VisitColor& visit) const;
  [[nodiscard]] std::vector<std::uint32_t> sortedPixels() const;
  [[nodiscard]] std::vector<std::uint32_t> pixelsOfEachColor() const;

  // Hands over all pixels, some at a time.
  ForEachBlock forEachBlock_;
  std::uint64_t pixelCount_ = 0;
  // One bit for each of the 2^24 colors, by its place in the order.
  std::vector<std::uint64_t> occurring_;
  std::uint64_t distinctCount_ = 0;
  // The fourth byte of all pixels, in its place in the word, where it is the same.
  ColorWord fourthByte_ = 0;
  bool fourthByteDiffers_ = false;
};

}  // namespace quillhue
