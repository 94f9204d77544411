#include "formats/standard/pcx_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "core/system_palettes.h"
#include "formats/image_limits.h"
#include "formats/readers/palette_reader.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kHeaderPalette = 16;
constexpr std::uint64_t kPixels = 128;
constexpr std::uint8_t kPaletteMark = 12;
// The mark and 256 triples.
constexpr std::uint64_t kTrailer = 769;
constexpr std::uint8_t kWithoutPalette = 3;
constexpr std::uint8_t kWithTrailer = 5;

struct Depth {
  unsigned bits;
  unsigned planes;
};
constexpr std::array<Depth, 8> kDepths{{{1, 1}, {1, 2}, {1, 3}, {1, 4}, {2, 1}, {4, 1}, {8, 1}, {8, 3}}};

// Reads the bytes of the rows, one plane after the other. In compressed data, the low six bits of a byte of 192 or more
// are the number of times that the next byte occurs. A run may continue in the next row.
class PcxBytes {
 public:
  PcxBytes(ByteSource& source, bool isCompressed) : source_(source), isCompressed_(isCompressed) {}

  [[nodiscard]] bool endsEarly() const { return endsEarly_; }

  void read(std::span<std::uint8_t> out) {
    for (std::uint8_t& byte : out) {
      while (repeats_ == 0) {
        startRun();
      }
      byte = value_;
      --repeats_;
    }
  }

 private:
  void startRun() {
    value_ = source_.u8(at_++);
    repeats_ = 1;
    if (isCompressed_ && value_ >= 192) {
      repeats_ = value_ & 63U;
      value_ = source_.u8(at_++);
    }
    endsEarly_ = endsEarly_ || at_ > source_.size();
  }

  ByteSource& source_;
  bool isCompressed_;
  bool endsEarly_ = false;
  std::uint64_t at_ = kPixels;
  std::uint32_t repeats_ = 0;
  std::uint8_t value_ = 0;
};

// The bits of all planes form an index; the first plane has the lowest bits.
void decodeIndexes(std::span<const std::uint8_t> planes, const PcxHeader& header, std::span<std::uint8_t> row) {
  const std::size_t perByte = 8 / header.bits;
  for (std::size_t x = 0; x < row.size(); ++x) {
    const auto shift = static_cast<unsigned>((perByte - 1 - x % perByte) * header.bits);
    for (unsigned plane = 0; plane < header.planes; ++plane) {
      const std::uint8_t stored = planes[std::size_t{plane} * header.bytesPerRow + x / perByte];
      const auto bits = static_cast<unsigned>(stored >> shift) & ((1U << header.bits) - 1);
      row[x] = static_cast<std::uint8_t>(row[x] | bits << plane * header.bits);
    }
  }
}

void decodeColors(std::span<const std::uint8_t> planes, const PcxHeader& header, std::span<std::uint8_t> row) {
  for (std::size_t x = 0; x < row.size() / 3; ++x) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      row[3 * x + channel] = planes[(2 - channel) * header.bytesPerRow + x];
    }
  }
}

// Returns the 16 standard colors of the screen. Files of version 3 have no palette of their own.
Palette screenPalette() {
  FixedHalftone screen;
  return std::ranges::find(systemPalettes(), "cga", &SystemPalette::name)->create(screen);
}

}  // namespace

bool isPcxFile(ByteSource& source) { return source.u8(0) == 0x0A && source.u8(1) <= 5 && source.u8(2) <= 1; }

std::expected<PcxHeader, Failure> readPcxHeader(ByteSource& source) {
  PcxHeader header;
  header.version = source.u8(1);
  header.isCompressed = source.u8(2) == 1;
  header.bits = source.u8(3);
  header.planes = source.u8(65);
  header.bytesPerRow = source.u16le(66);
  header.width = source.u16le(8) - source.u16le(4) + 1;
  header.height = source.u16le(10) - source.u16le(6) + 1;
  if (const auto failure = checkImageSize(header.width, header.height)) {
    return std::unexpected(*failure);
  }
  const bool isKnown = std::ranges::any_of(
      kDepths, [&](const Depth& depth) { return depth.bits == header.bits && depth.planes == header.planes; });
  const std::uint64_t needed = (static_cast<std::uint64_t>(header.width) * header.bits + 7) / 8;
  if (!isKnown || header.bytesPerRow < needed) {
    return std::unexpected(Failure::pcxDepth);
  }
  return header;
}

std::expected<Palette, Failure> readPcxPalette(ByteSource& source, const PcxHeader& header) {
  const std::int32_t entries = 1 << (header.bits * header.planes);
  if (entries == 256) {
    const std::uint64_t trailer = source.size() - std::min(source.size(), kTrailer);
    if (header.version != kWithTrailer || trailer < kPixels || source.u8(trailer) != kPaletteMark) {
      return std::unexpected(Failure::pcxUnrecognised);
    }
    return readTriples(source, trailer + 1, entries);
  }
  Palette palette = readTriples(source, kHeaderPalette, entries);
  if (entries == 2 && (header.version == kWithoutPalette || palette.entry(0) == palette.entry(1))) {
    palette.setEntry(0, {});
    palette.setEntry(1, {255, 255, 255});
  } else if (header.version == kWithoutPalette) {
    palette = resizedCopy(screenPalette(), entries, {});
  }
  return palette;
}

ImageResult readPcxPixels(ByteSource& source, const PcxHeader& header) {
  std::optional<Palette> palette;
  if (header.hasPalette()) {
    auto read = readPcxPalette(source, header);
    if (!read) {
      return std::unexpected(read.error());
    }
    palette = resizedCopy(*read, read->getSize() <= 16 ? 16 : 256, {});
  }
  WorkImage image(header.width, header.height, std::move(palette));
  PcxBytes bytes(source, header.isCompressed);
  std::vector<std::uint8_t> planes(std::size_t{header.bytesPerRow} * header.planes);
  for (std::int32_t y = 0; y < header.height; ++y) {
    bytes.read(planes);
    if (bytes.endsEarly()) {
      return std::unexpected(Failure::pictureDamaged);
    }
    if (header.hasPalette()) {
      decodeIndexes(planes, header, image.row(y));
    } else {
      decodeColors(planes, header, image.row(y));
    }
  }
  return image;
}

}  // namespace quillhue
