#include "formats/true_color_bitmap.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <vector>

#include "formats/bitmap_layout.h"
#include "formats/image_limits.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;

constexpr std::uint64_t kBlockBytes = std::uint64_t{1} << 18;

void decode16(std::span<const std::uint8_t> row, std::span<ColorWord> words) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::uint32_t pixel = row[2 * i] | static_cast<std::uint32_t>(row[2 * i + 1]) << 8;
    words[i] = widenField(pixel & 31) | widenField(pixel >> 5 & 31) << 8 | widenField(pixel >> 10 & 31) << 16;
  }
}

void decode24(std::span<const std::uint8_t> row, std::span<ColorWord> words) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto pixel = row.subspan(3 * i, 3);
    words[i] = pixel[0] | static_cast<ColorWord>(pixel[1]) << 8 | static_cast<ColorWord>(pixel[2]) << 16;
  }
}

void decode32(std::span<const std::uint8_t> row, std::span<ColorWord> words) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto pixel = row.subspan(4 * i, 4);
    words[i] = pixel[0] | static_cast<ColorWord>(pixel[1]) << 8 | static_cast<ColorWord>(pixel[2]) << 16 |
               static_cast<ColorWord>(pixel[3]) << 24;
  }
}

}  // namespace

std::expected<TrueColorBitmap, Failure> TrueColorBitmap::open(ByteSource& source) {
  const auto width = static_cast<std::int32_t>(source.u32le(kFileHeader + kWidth));
  // The height is negative if the top row comes first. The order of rows does not matter for colors.
  const std::int64_t height = std::abs(std::int64_t{static_cast<std::int32_t>(source.u32le(kFileHeader + kHeight))});
  if (const auto failure = checkImageSize(width, height)) {
    return std::unexpected(*failure);
  }
  TrueColorBitmap bitmap;
  bitmap.source_ = &source;
  bitmap.bytesPerPixel_ = source.u8(kFileHeader + kBitCount) / 8;
  // kept on purpose: only the low byte of the pixel offset is used.
  bitmap.offset_ = source.u8(kPixelOffset);
  bitmap.width_ = static_cast<std::uint64_t>(width);
  bitmap.stride_ = (bitmap.width_ * bitmap.bytesPerPixel_ + 3) / 4 * 4;
  const std::uint64_t stored = source.size() - std::min(source.size(), bitmap.offset_);
  bitmap.rows_ =
      std::min<std::uint64_t>(static_cast<std::uint64_t>(height), (stored + bitmap.stride_ - 1) / bitmap.stride_);
  if (bitmap.rows_ == 0) {
    return std::unexpected(Failure::imageTooSmall);
  }
  return bitmap;
}

void TrueColorBitmap::forEachBlock(const std::function<void(std::span<const ColorWord>)>& visit) const {
  const auto decode = bytesPerPixel_ == 2 ? decode16 : bytesPerPixel_ == 3 ? decode24 : decode32;
  const std::uint64_t rowsAtOnce = std::clamp<std::uint64_t>(kBlockBytes / stride_, 1, rows_);
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(rowsAtOnce * stride_));
  std::vector<ColorWord> words(static_cast<std::size_t>(rowsAtOnce * width_));
  for (std::uint64_t row = 0; row < rows_; row += rowsAtOnce) {
    const auto rows = static_cast<std::size_t>(std::min(rowsAtOnce, rows_ - row));
    const auto stride = static_cast<std::size_t>(stride_);
    const auto width = static_cast<std::size_t>(width_);
    source_->read(offset_ + row * stride_, std::span(bytes).first(rows * stride));
    for (std::size_t i = 0; i < rows; ++i) {
      decode(std::span(bytes).subspan(i * stride, stride), std::span(words).subspan(i * width, width));
    }
    visit(std::span(words).first(rows * width));
  }
}

}  // namespace quillhue
