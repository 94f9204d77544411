#include <algorithm>
#include <array>
#include <bit>
#include <new>
#include <vector>

#include "formats/image_limits.h"
#include "formats/images/image_loaders.h"
#include "formats/readers/palette_reader.h"

namespace quillhue {

namespace {

// EA IFF 85 and its form ILBM (J. Morrison, 1986): chunks of a tag, a length, and data.
constexpr std::uint64_t kFormType = 8;
constexpr std::uint64_t kChunks = 12;
constexpr std::uint64_t kChunkData = 8;
constexpr std::size_t kPlanes = 8;

struct Header {
  std::int32_t width = 0;
  std::int32_t height = 0;
  // A mask plane follows the color planes.
  bool hasMask = false;
  bool isCompressed = false;
};

bool matches(ByteSource& source) { return matchTag(source, 0, "FORM"); }

// kept on purpose: only files of two sizes are loaded, recognised by the low half of the form's length.
bool hasKnownSize(ByteSource& source) {
  const std::uint16_t size = source.u16be(6);
  return size == 0xFD30 || size == 0x7638;
}

// Returns the offset of the data of the first chunk with this tag, searched byte by byte.
std::optional<std::uint64_t> findChunk(ByteSource& source, std::string_view tag) {
  const std::uint64_t found = findTag(source, kChunks, tag);
  return found < source.size() ? std::optional(found + kChunkData) : std::nullopt;
}

std::expected<Header, Failure> readHeader(ByteSource& source) {
  const auto data = findChunk(source, "BMHD");
  if (!data) {
    return std::unexpected(Failure::lbmUnsupported);
  }
  const Header header{source.u16be(*data), source.u16be(*data + 2), source.u8(*data + 9) == 1,
                      source.u8(*data + 10) == 1};
  if (const auto failure = checkImageSize(header.width, header.height)) {
    return std::unexpected(*failure);
  }
  if (source.u8(*data + 8) != kPlanes) {
    return std::unexpected(Failure::lbmNot8Bit);
  }
  if (source.u8(*data + 10) > 1) {
    return std::unexpected(Failure::lbmUnsupported);
  }
  return header;
}

// Entries that the file lacks are black.
std::expected<Palette, Failure> readColorMap(ByteSource& source) {
  Palette palette = createPalette(256);
  const auto data = findChunk(source, "CMAP");
  if (!data) {
    return palette;
  }
  const std::uint32_t count = source.u32be(*data - 4) / 3;
  if (count > 256) {
    return std::unexpected(Failure::lbmPaletteTooLarge);
  }
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint64_t color = *data + 3 * std::uint64_t{i};
    palette.setEntry(static_cast<std::int32_t>(i), {source.u8(color), source.u8(color + 1), source.u8(color + 2)});
  }
  return palette;
}

// Reads the bytes of the body in order. They are stored directly or packed with ByteRun1: n + 1 bytes follow a count n
// of 0 to 127. After a count n of -1 to -127, one byte follows, which occurs 1 - n times.
class Body {
 public:
  Body(ByteSource& source, std::uint64_t offset, bool isCompressed)
      : source_(source), offset_(offset), isCompressed_(isCompressed) {}

  [[nodiscard]] bool isAtEnd() const { return offset_ >= source_.size() && repeats_ == 0; }

  void read(std::span<std::uint8_t> out) {
    if (!isCompressed_) {
      source_.read(offset_, out);
      offset_ += out.size();
      return;
    }
    while (!out.empty()) {
      if (isAtEnd()) {
        std::ranges::fill(out, std::uint8_t{0});
        return;
      }
      out = out.subspan(readPacket(out));
    }
  }

 private:
  // Copies bytes of the current packet to `out` and returns their number; 0 when the packet was used up and the next
  // one has been opened.
  std::size_t readPacket(std::span<std::uint8_t> out) {
    if (literals_ > 0) {
      const std::size_t count = std::min(literals_, out.size());
      source_.read(offset_, out.first(count));
      offset_ += count;
      literals_ -= count;
      return count;
    }
    if (repeats_ > 0) {
      const std::size_t count = std::min(repeats_, out.size());
      std::ranges::fill(out.first(count), value_);
      repeats_ -= count;
      return count;
    }
    const auto count = static_cast<std::int8_t>(source_.u8(offset_++));
    if (count >= 0) {
      literals_ = static_cast<std::size_t>(count) + 1;
    } else if (count != -128) {
      repeats_ = static_cast<std::size_t>(1 - count);
      value_ = source_.u8(offset_++);
    }
    return 0;
  }

  ByteSource& source_;
  std::uint64_t offset_;
  bool isCompressed_;
  std::size_t literals_ = 0;
  std::size_t repeats_ = 0;
  std::uint8_t value_ = 0;
};

// For each byte of a plane, its bits as the lowest bits of eight pixels. The left pixel is the highest bit.
constexpr auto kPixelsOfByte = [] {
  std::array<std::array<std::uint8_t, 8>, 256> pixels{};
  for (std::size_t byte = 0; byte < pixels.size(); ++byte) {
    for (std::size_t x = 0; x < 8; ++x) {
      pixels[byte][x] = static_cast<std::uint8_t>(byte >> (7 - x) & 1);
    }
  }
  return pixels;
}();

// Each row has its planes one after the other, the lowest bit of the index first.
void readPlanes(Body& body, bool hasMask, WorkImage& image) {
  const std::size_t planeRow = (static_cast<std::size_t>(image.width()) + 15) / 16 * 2;
  std::vector<std::uint8_t> planes(planeRow * (hasMask ? kPlanes + 1 : kPlanes));
  for (std::int32_t y = 0; y < image.height() && !body.isAtEnd(); ++y) {
    body.read(planes);
    std::span<std::uint8_t> row = image.row(y);
    for (std::size_t byte = 0; !row.empty(); ++byte) {
      std::uint64_t pixels = 0;
      for (std::size_t plane = 0; plane < kPlanes; ++plane) {
        pixels |= std::bit_cast<std::uint64_t>(kPixelsOfByte[planes[plane * planeRow + byte]]) << plane;
      }
      const auto indexes = std::bit_cast<std::array<std::uint8_t, 8>>(pixels);
      const std::size_t count = std::min(row.size(), indexes.size());
      std::copy_n(indexes.begin(), count, row.begin());
      row = row.subspan(count);
    }
  }
}

// One byte a pixel, rows padded to 16 bits.
void readBytes(Body& body, WorkImage& image) {
  std::uint8_t padding = 0;
  for (std::int32_t y = 0; y < image.height() && !body.isAtEnd(); ++y) {
    body.read(image.row(y));
    body.read({&padding, static_cast<std::size_t>(image.width() % 2)});
  }
}

ImageResult load(ByteSource& source) {
  if (!hasKnownSize(source)) {
    return std::unexpected(Failure::lbmUnsupported);
  }
  const auto header = readHeader(source);
  if (!header) {
    return std::unexpected(header.error());
  }
  auto palette = readColorMap(source);
  if (!palette) {
    return std::unexpected(palette.error());
  }
  const auto pixels = findChunk(source, "BODY");
  if (!pixels) {
    return std::unexpected(Failure::lbmUnsupported);
  }
  WorkImage image(header->width, header->height, std::move(*palette));
  Body body(source, *pixels, header->isCompressed);
  if (!matchTag(source, kFormType, "ILBM")) {
    readBytes(body, image);
    return image;
  }
  try {
    readPlanes(body, header->hasMask, image);
  } catch (const std::bad_alloc&) {
    return std::unexpected(Failure::noMemoryToDeinterleave);
  }
  return image;
}

}  // namespace

constinit const ImageLoader kLbmLoader{"lbm", "*.lbm", matches, load};

}  // namespace quillhue
