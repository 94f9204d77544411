#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "formats/image_limits.h"
#include "pictures/sample_rows.h"

namespace quillhue {

namespace {

// Greater than any valid number in a header.
constexpr std::uint32_t kNumberLimit = 1000000000;

bool isSpace(std::uint8_t byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }
bool isDigit(std::uint8_t byte) { return byte >= '0' && byte <= '9'; }

// Reads the text of a header and of the samples of a plain file.
class Text {
 public:
  explicit Text(PictureBytes bytes) : rest_(bytes) {}

  [[nodiscard]] PictureBytes rest() const { return rest_; }

  // Skips the single byte between header and samples.
  bool skipOneSpace() {
    if (rest_.empty() || !isSpace(rest_.front())) {
      return false;
    }
    rest_ = rest_.subspan(1);
    return true;
  }

  void skipSpace() {
    while (!rest_.empty() && (isSpace(rest_.front()) || rest_.front() == '#')) {
      if (rest_.front() == '#') {
        skipLine();
      } else {
        rest_ = rest_.subspan(1);
      }
    }
  }

  void skipLine() { rest_ = PictureBytes(std::ranges::find(rest_, '\n'), rest_.end()); }

  // Returns the text up to the next space; empty at the end.
  std::string word() {
    skipSpace();
    const auto end = std::ranges::find_if(rest_, isSpace);
    std::string text(rest_.begin(), end);
    rest_ = PictureBytes(end, rest_.end());
    return text;
  }

  std::optional<std::uint32_t> number(std::size_t mostDigits = 10) {
    skipSpace();
    std::uint32_t number = 0;
    std::size_t digits = 0;
    for (; digits < std::min(mostDigits, rest_.size()) && isDigit(rest_[digits]); ++digits) {
      if (number >= kNumberLimit / 10) {
        return {};
      }
      number = number * 10 + (rest_[digits] - std::uint32_t{'0'});
    }
    rest_ = rest_.subspan(digits);
    return digits > 0 ? std::optional(number) : std::nullopt;
  }

 private:
  PictureBytes rest_;
};

struct Header {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::uint32_t maximum = 1;
  std::uint32_t depth = 1;
  // For a PAM file.
  std::string tupleType;
};

std::optional<Header> readHeader(Text& text, bool hasMaximum, std::uint32_t depth) {
  const auto width = text.number();
  const auto height = text.number();
  const auto maximum = hasMaximum ? text.number() : 1;
  if (!width || !height || !maximum || !text.skipOneSpace()) {
    return {};
  }
  return Header{*width, *height, *maximum, depth, {}};
}

std::optional<Header> readPamHeader(Text& text) {
  Header header{.maximum = 0, .depth = 0, .tupleType = {}};
  for (std::string word = text.word(); word != "ENDHDR"; word = text.word()) {
    if (word == "TUPLTYPE") {
      header.tupleType = text.word();
      continue;
    }
    std::uint32_t* const field = word == "WIDTH"    ? &header.width
                                 : word == "HEIGHT" ? &header.height
                                 : word == "DEPTH"  ? &header.depth
                                 : word == "MAXVAL" ? &header.maximum
                                                    : nullptr;
    const auto number = field == nullptr ? std::nullopt : text.number();
    if (!number) {
      return {};
    }
    *field = *number;
  }
  text.skipLine();
  return text.skipOneSpace() ? std::optional(header) : std::nullopt;
}

struct TupleType {
  std::string_view name;
  std::uint32_t depth;
};
constexpr std::array kTupleTypes{
    TupleType{"BLACKANDWHITE", 1},       TupleType{"GRAYSCALE", 1},       TupleType{"RGB", 3},
    TupleType{"BLACKANDWHITE_ALPHA", 2}, TupleType{"GRAYSCALE_ALPHA", 2}, TupleType{"RGB_ALPHA", 4}};

// If a file names no tuple type, any type with this number of samples is used.
bool isKnown(const Header& header) {
  return std::ranges::any_of(kTupleTypes, [&](const TupleType& type) {
    return type.depth == header.depth && (header.tupleType.empty() || header.tupleType == type.name);
  });
}

// Reads the samples of a plain file into a row in the raw format. A plain PBM needs no spaces between digits.
bool readPlainRow(Text& text, const SampleFormat& format, bool isBitmap, std::span<std::uint8_t> row) {
  const std::size_t length = format.bits / 8;
  for (std::size_t i = 0; i < row.size(); i += length) {
    const auto number = text.number(isBitmap ? 1 : 10);
    if (!number) {
      return false;
    }
    const auto sample = std::min<std::uint32_t>(*number, format.maximum);
    row[i] = static_cast<std::uint8_t>(sample >> (8 * (length - 1)));
    row[i + length - 1] = static_cast<std::uint8_t>(sample);
  }
  return true;
}

bool matches(PictureBytes start) {
  return start.size() >= 3 && start[0] == 'P' && start[1] >= '1' && start[1] <= '7' && isSpace(start[2]);
}

// The format that the digit after the P means, and the header that follows.
struct Variant {
  bool isPlain;
  // In a bitmap 1 is black.
  bool isBitmap;
  Header header;
  SampleFormat format;
};

std::expected<Variant, Failure> readVariant(std::uint8_t digit, Text& text) {
  const auto kind = static_cast<unsigned>(digit - '0');
  const bool isBitmap = kind == 1 || kind == 4;
  const auto header = kind == 7 ? readPamHeader(text) : readHeader(text, !isBitmap, kind % 3 == 0 ? 3 : 1);
  if (!header || header->maximum < 1 || header->maximum > 65535) {
    return std::unexpected(Failure::pictureDamaged);
  }
  if (!isKnown(*header)) {
    return std::unexpected(Failure::pictureUnsupported);
  }
  if (const auto failure = checkImageSize(header->width, header->height)) {
    return std::unexpected(*failure);
  }
  return Variant{kind <= 3,
                 isBitmap,
                 *header,
                 {.kind = header->depth < 3 ? SampleKind::gray : SampleKind::color,
                  .hasAlpha = header->depth % 2 == 0,
                  .bits = kind == 4 ? 1U : (header->maximum < 256 ? 8U : 16U),
                  .maximum = static_cast<std::uint16_t>(header->maximum)}};
}

PictureResult decode(PictureBytes file, PaletteEntry blank) {
  Text text(file.subspan(2));
  const auto variant = readVariant(file[1], text);
  if (!variant) {
    return std::unexpected(variant.error());
  }
  const auto& [isPlain, isBitmap, header, format] = *variant;
  PictureBytes samples = text.rest();
  std::vector<std::uint8_t> row(format.rowLength(header.width));
  // Checked before memory for the image is allocated. Each sample of a plain file takes at least one byte.
  const std::size_t leastRow = isPlain ? header.width * format.samplesPerPixel() : row.size();
  if (samples.size() / leastRow < header.height) {
    return std::unexpected(Failure::pictureDamaged);
  }
  const auto height = static_cast<std::int32_t>(header.height);
  SampleRows rows(static_cast<std::int32_t>(header.width), height, format, blank);
  for (std::int32_t y = 0; y < height; ++y) {
    if (!isPlain) {
      std::ranges::copy(samples.first(row.size()), row.begin());
      samples = samples.subspan(row.size());
    } else if (!readPlainRow(text, format, isBitmap, row)) {
      return std::unexpected(Failure::pictureDamaged);
    }
    if (isBitmap) {
      std::ranges::transform(row, row.begin(),
                             [&](std::uint8_t bits) { return static_cast<std::uint8_t>(bits ^ (isPlain ? 1 : 255)); });
    }
    rows.store(y, row);
  }
  return rows.take();
}

}  // namespace

constinit const PictureKind kPnmPicture{"pnm",   "PNM image", "signature P1 to P7", "*.pbm;*.pgm;*.ppm;*.pnm;*.pam",
                                        matches, decode};

}  // namespace quillhue
