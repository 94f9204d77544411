#include "pictures/jpeg_file.h"

#include <algorithm>
#include <optional>

#include "formats/image_limits.h"

namespace quillhue {

namespace {

// Marker codes of ITU-T T.81, table B.1.
constexpr std::uint8_t kMark = 0xFF;
constexpr std::uint8_t kFirstFrame = 0xC0;
constexpr std::uint8_t kProgressiveFrame = 0xC2;
constexpr std::uint8_t kLastFrame = 0xCF;
constexpr std::uint8_t kHuffmanTables = 0xC4;
constexpr std::uint8_t kExtension = 0xC8;
constexpr std::uint8_t kArithmeticConditions = 0xCC;
constexpr std::uint8_t kFirstRestart = 0xD0;
constexpr std::uint8_t kStart = 0xD8;
constexpr std::uint8_t kEnd = 0xD9;
constexpr std::uint8_t kScan = 0xDA;
constexpr std::uint8_t kTemporary = 0x01;

// Each scan is a pass over the image, so a small file with many scans could keep a decoder busy for hours. Encoders
// write about ten scans, and there are only 64 coefficients to divide among them.
constexpr int kMostScans = 100;

bool isFrame(std::uint8_t marker) {
  return marker >= kFirstFrame && marker <= kLastFrame && marker != kHuffmanTables && marker != kExtension &&
         marker != kArithmeticConditions;
}

bool standsAlone(std::uint8_t marker) { return marker == kTemporary || (marker >= kFirstRestart && marker <= kStart); }

// Iterates over the markers and their segments. Skips any bytes between a segment and the next marker, such as the data
// of a scan.
class Segments {
 public:
  explicit Segments(PictureBytes file) : rest_(file) {}

  struct Segment {
    std::uint8_t marker;
    PictureBytes data;
  };

  // Returns nothing at the end of the file.
  std::optional<Segment> next() {
    for (;;) {
      const auto mark = std::ranges::find(rest_, kMark);
      const auto code = std::find_if(mark, rest_.end(), [](std::uint8_t byte) { return byte != kMark; });
      if (code == rest_.end()) {
        return {};
      }
      const std::uint8_t marker = *code;
      rest_ = PictureBytes(code, rest_.end()).subspan(1);
      // A mark followed by zero is a byte of data.
      if (marker != 0 && !standsAlone(marker)) {
        return marker == kEnd ? Segment{marker, {}} : withData(marker);
      }
    }
  }

 private:
  std::optional<Segment> withData(std::uint8_t marker) {
    const std::size_t length = rest_.size() < 2 ? 0 : static_cast<std::size_t>(rest_[0] << 8 | rest_[1]);
    if (length < 2 || length > rest_.size()) {
      return {};
    }
    const Segment segment{marker, rest_.subspan(2, length - 2)};
    rest_ = rest_.subspan(length);
    return segment;
  }

  PictureBytes rest_;
};

std::expected<JpegHeader, Failure> readFrame(const Segments::Segment& frame) {
  constexpr std::size_t kLength = 6;
  if (frame.data.size() < kLength) {
    return std::unexpected(Failure::pictureDamaged);
  }
  const JpegHeader header{frame.data[3] << 8 | frame.data[4], frame.data[1] << 8 | frame.data[2], frame.data[5]};
  const bool isKnown = header.components == 1 || header.components == 3 || header.components == 4;
  if (frame.marker > kProgressiveFrame || frame.data[0] != 8 || !isKnown) {
    return std::unexpected(Failure::pictureUnsupported);
  }
  if (const auto failure = checkImageSize(header.width, header.height)) {
    return std::unexpected(*failure);
  }
  return header;
}

bool matches(PictureBytes start) {
  return start.size() >= 3 && start[0] == kMark && start[1] == kStart && start[2] == kMark;
}

PictureResult decode(PictureBytes file, PaletteEntry /*blank*/) {
  const auto header = readJpegHeader(file);
  if (!header) {
    return std::unexpected(header.error());
  }
  return decodeJpegSamples(file, *header);
}

}  // namespace

std::expected<JpegHeader, Failure> readJpegHeader(PictureBytes file) {
  Segments segments(file);
  std::optional<JpegHeader> header;
  int scans = 0;
  while (const auto segment = segments.next()) {
    if (segment->marker == kEnd) {
      if (!header || scans == 0) {
        break;
      }
      return *header;
    }
    if (isFrame(segment->marker)) {
      const auto frame = readFrame(*segment);
      if (!frame || header) {
        return std::unexpected(frame ? Failure::pictureDamaged : frame.error());
      }
      header = *frame;
    } else if (segment->marker == kScan && ++scans > kMostScans) {
      return std::unexpected(Failure::pictureUnsupported);
    }
  }
  return std::unexpected(Failure::pictureDamaged);
}

constinit const PictureKind kJpegPicture{"jpeg", "JPEG image", "signature FF D8 FF", "*.jpg;*.jpeg", matches, decode};

}  // namespace quillhue
