#include "formats/standard/bitmap_runs.h"

#include <cstddef>

namespace quillhue {

namespace {

// A zero is followed by one of these, or by a number of literal pixels.
enum Escape : std::uint8_t { kEndOfRow = 0, kEndOfBitmap = 1, kDelta = 2 };

class RunDecoder {
 public:
  RunDecoder(ByteSource& source, const BitmapHeader& header,
             const std::function<std::span<std::uint8_t>(std::int32_t y)>& rowAt)
      : source_(source),
        rowAt_(rowAt),
        isRle4_(header.compression == BitmapHeader::Compression::rle4),
        height_(static_cast<std::uint64_t>(header.height)),
        at_(header.pixels) {}

  bool decode() {
    while (y_ < height_) {
      if (at_ + 2 > source_.size()) {
        return false;
      }
      const std::uint8_t count = source_.u8(at_);
      const std::uint8_t value = source_.u8(at_ + 1);
      at_ += 2;
      if (count > 0) {
        putPixels(count, [&](std::uint32_t /*i*/) { return value; });
      } else if (value == kEndOfBitmap) {
        return true;
      } else if (value == kEndOfRow) {
        x_ = 0;
        ++y_;
      } else if (value == kDelta) {
        x_ += source_.u8(at_);
        y_ += source_.u8(at_ + 1);
        at_ += 2;
      } else {
        putLiterals(value);
      }
    }
    return true;
  }

 private:
  // The left of two pixels in a byte is in the high half.
  [[nodiscard]] std::uint8_t indexIn(std::uint8_t value, std::uint32_t place) const {
    if (!isRle4_) {
      return value;
    }
    return place % 2 == 0 ? value >> 4 : value & 15;
  }

  // Stores `count` pixels. `valueOf` returns the byte at a place.
  void putPixels(std::uint8_t count, auto valueOf) {
    const auto row = rowAt_(static_cast<std::int32_t>(y_));
    for (std::uint32_t i = 0; i < count; ++i, ++x_) {
      if (x_ < row.size()) {
        row[static_cast<std::size_t>(x_)] = indexIn(valueOf(isRle4_ ? i / 2 : i), i);
      }
    }
  }

  // Literal pixels are padded to 16 bits.
  void putLiterals(std::uint8_t count) {
    const std::uint32_t bytes = isRle4_ ? (count + 1U) / 2 : count;
    putPixels(count, [&](std::uint32_t i) { return source_.u8(at_ + i); });
    at_ += bytes + bytes % 2;
  }

  ByteSource& source_;
  const std::function<std::span<std::uint8_t>(std::int32_t y)>& rowAt_;
  bool isRle4_;
  std::uint64_t height_;
  std::uint64_t at_;
  std::uint64_t x_ = 0;
  std::uint64_t y_ = 0;
};

}  // namespace

bool decodeBitmapRuns(ByteSource& source, const BitmapHeader& header,
                      const std::function<std::span<std::uint8_t>(std::int32_t y)>& rowAt) {
  return RunDecoder(source, header, rowAt).decode();
}

}  // namespace quillhue
