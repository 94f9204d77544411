#include "formats/standard/bitmap_header.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "formats/bitmap_layout.h"
#include "formats/image_limits.h"
#include "formats/readers/palette_reader.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;
using Compression = BitmapHeader::Compression;

constexpr std::uint32_t kCoreHeader = 12;
constexpr std::uint32_t kOs2Header = 64;
constexpr std::uint32_t kAlphaHeader = 56;
constexpr std::array<std::uint32_t, 8> kHeaderSizes{kCoreHeader, 16, 40, 52, kAlphaHeader, kOs2Header, 108, 124};

// BI_RGB, BI_RLE8, BI_RLE4, BI_BITFIELDS and BI_ALPHABITFIELDS.
enum StoredCompression : std::uint32_t { kPlain = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3, kAlphaBitFields = 6 };

// The fields of a header of a given size. Missing fields are 0.
class Fields {
 public:
  Fields(ByteSource& source, std::uint64_t offset) : source_(source), offset_(offset), size_(source.u32le(offset)) {}

  [[nodiscard]] std::uint32_t size() const { return size_; }
  [[nodiscard]] bool isCore() const { return size_ == kCoreHeader; }
  [[nodiscard]] std::uint32_t u32(std::uint64_t field) const {
    return field + 4 <= size_ ? source_.u32le(offset_ + field) : 0;
  }
  [[nodiscard]] std::uint16_t u16(std::uint64_t field) const { return source_.u16le(offset_ + field); }

 private:
  ByteSource& source_;
  std::uint64_t offset_;
  std::uint32_t size_;
};

std::optional<Failure> readSize(const Fields& fields, BitmapHeader& header) {
  const auto width = fields.isCore() ? fields.u16(4) : static_cast<std::int32_t>(fields.u32(kWidth));
  const auto height = fields.isCore() ? fields.u16(6) : static_cast<std::int32_t>(fields.u32(kHeight));
  if (const auto failure = checkImageSize(width, std::abs(std::int64_t{height}))) {
    return failure;
  }
  header.width = width;
  header.height = std::abs(height);
  header.isTopDown = height < 0;
  return std::nullopt;
}

// Returns false for a combination of depth and compression that does not exist.
bool readDepth(const Fields& fields, BitmapHeader& header) {
  constexpr std::array<unsigned, 7> kDepths{1, 2, 4, 8, 16, 24, 32};
  header.bits = fields.isCore() ? fields.u16(10) : fields.u16(kBitCount);
  if (std::ranges::find(kDepths, header.bits) == kDepths.end()) {
    return false;
  }
  switch (fields.u32(kCompression)) {
    case kPlain:
      return true;
    case kRle8:
      header.compression = Compression::rle8;
      return header.bits == 8;
    case kRle4:
      header.compression = Compression::rle4;
      return header.bits == 4;
    case kBitFields:
    case kAlphaBitFields:
      return (header.bits == 16 || header.bits == 32) && fields.size() != kOs2Header;
    default:
      return false;
  }
}

// Reads the masks of bit fields, which follow the first 40 bytes whether they belong to the header or not. Returns
// their number.
std::size_t readMasks(const Fields& fields, ByteSource& source, std::uint64_t offset, BitmapHeader& header) {
  const std::uint32_t compression = fields.u32(kCompression);
  if (compression != kBitFields && compression != kAlphaBitFields) {
    header.masks = header.bits == 16 ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                                     : std::array<std::uint32_t, 4>{0xFF0000, 0xFF00, 0xFF, 0};
    return 0;
  }
  const std::size_t count = compression == kAlphaBitFields || fields.size() >= kAlphaHeader ? 4 : 3;
  for (std::size_t i = 0; i < count; ++i) {
    header.masks[i] = source.u32le(offset + kInfoHeader + 4 * i);
  }
  return count;
}

}  // namespace

std::expected<BitmapHeader, Failure> readBitmapHeader(ByteSource& source, std::uint64_t offset,
                                                      std::optional<std::uint64_t> pixels) {
  const Fields fields(source, offset);
  BitmapHeader header;
  if (std::ranges::find(kHeaderSizes, fields.size()) == kHeaderSizes.end() || !readDepth(fields, header)) {
    return std::unexpected(Failure::bitmapUnsupported);
  }
  if (const auto failure = readSize(fields, header)) {
    return std::unexpected(*failure);
  }
  const std::size_t masks = readMasks(fields, source, offset, header);
  header.table = offset + std::max<std::uint64_t>(fields.size(), masks == 0 ? 0 : kInfoHeader + 4 * masks);
  header.entrySize = fields.isCore() ? 3 : 4;
  const std::uint32_t used = fields.u32(kColorsUsed);
  header.entries = header.bits > 8 ? 0 : used == 0 ? 1U << header.bits : used;
  if (pixels && *pixels >= header.table) {
    // In some files the pixels begin before the end of the table.
    const std::uint64_t room = (*pixels - header.table) / header.entrySize;
    header.entries = static_cast<std::uint32_t>(std::min<std::uint64_t>(header.entries, room));
  }
  const std::uint64_t behind = header.table + std::uint64_t{header.entrySize} * header.entries;
  header.pixels = pixels && *pixels >= header.table ? *pixels : behind;
  return header;
}

std::expected<BitmapHeader, Failure> readBitmapFileHeader(ByteSource& source) {
  return readBitmapHeader(source, kFileHeader, source.u32le(kPixelOffset));
}

std::expected<Palette, Failure> readColorTable(ByteSource& source, const BitmapHeader& header) {
  if (header.entries == 0) {
    return std::unexpected(Failure::bitmapUnsupported);
  }
  const auto count = static_cast<std::int32_t>(std::min<std::uint32_t>(header.entries, kMaxPaletteSize));
  if (header.table + std::uint64_t{header.entrySize} * static_cast<std::uint64_t>(count) > source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return blueFirst(header.entrySize == 3 ? readTriples(source, header.table, count)
                                         : readQuads(source, header.table, count));
}

}  // namespace quillhue
