#include "pictures/png_file.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "formats/image_limits.h"

namespace quillhue {

namespace {

constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
// Length, tag and checksum of a chunk.
constexpr std::size_t kChunkFrame = 12;
constexpr std::size_t kHeaderLength = 13;

std::uint32_t u16be(PictureBytes bytes) { return static_cast<std::uint32_t>(bytes[0] << 8 | bytes[1]); }
std::uint32_t u32be(PictureBytes bytes) { return u16be(bytes) << 16 | u16be(bytes.subspan(2)); }

// CRC remainders of all byte values, lowest bit first.
constexpr auto kRemainders = [] {
  std::array<std::uint32_t, 256> remainders{};
  for (std::uint32_t byte = 0; byte < remainders.size(); ++byte) {
    std::uint32_t remainder = byte;
    for (int bit = 0; bit < 8; ++bit) {
      remainder = remainder >> 1 ^ ((remainder & 1) != 0 ? 0xEDB88320U : 0U);
    }
    remainders[byte] = remainder;
  }
  return remainders;
}();

struct Chunk {
  std::string_view tag;
  PictureBytes data;
  // The chunk including its length, tag and checksum.
  PictureBytes whole;
};

// Removes the first chunk from `rest` and returns it; nothing if the chunk is truncated.
std::optional<Chunk> takeChunk(PictureBytes& rest) {
  if (rest.size() < kChunkFrame) {
    return {};
  }
  const std::size_t length = u32be(rest);
  if (length > rest.size() - kChunkFrame) {
    return {};
  }
  const Chunk chunk{
      {reinterpret_cast<const char*>(rest.data()) + 4, 4}, rest.subspan(8, length), rest.first(length + kChunkFrame)};
  rest = rest.subspan(length + kChunkFrame);
  return chunk;
}

bool isIntact(const Chunk& chunk) {
  return pngChecksum(chunk.whole.subspan(4, chunk.data.size() + 4)) == u32be(chunk.whole.last(4));
}

// The sample kind of each color type and its permitted depths.
struct ColorType {
  std::uint8_t number;
  SampleKind kind;
  bool hasAlpha;
  std::uint32_t depths;
};
constexpr std::uint32_t bit(unsigned depth) { return 1U << depth; }
constexpr std::array kColorTypes{
    ColorType{0, SampleKind::gray, false, bit(1) | bit(2) | bit(4) | bit(8) | bit(16)},
    ColorType{2, SampleKind::color, false, bit(8) | bit(16)},
    ColorType{3, SampleKind::index, false, bit(1) | bit(2) | bit(4) | bit(8)},
    ColorType{4, SampleKind::gray, true, bit(8) | bit(16)},
    ColorType{6, SampleKind::color, true, bit(8) | bit(16)},
};

std::expected<PngFile, Failure> readHeader(PictureBytes data) {
  PngFile png;
  const std::uint32_t width = u32be(data);
  const std::uint32_t height = u32be(data.subspan(4));
  if (const auto failure = checkImageSize(width, height)) {
    return std::unexpected(*failure);
  }
  png.width = static_cast<std::int32_t>(width);
  png.height = static_cast<std::int32_t>(height);
  const std::uint8_t depth = data[8];
  const auto* const type = std::ranges::find(kColorTypes, data[9], &ColorType::number);
  if (type == kColorTypes.end() || depth > 16 || (type->depths & bit(depth)) == 0 || data[10] != 0 || data[11] != 0 ||
      data[12] > 1) {
    return std::unexpected(Failure::pictureDamaged);
  }
  png.format = {.kind = type->kind,
                .hasAlpha = type->hasAlpha,
                .bits = depth,
                .maximum = static_cast<std::uint16_t>((1U << depth) - 1)};
  png.isInterlaced = data[12] == 1;
  return png;
}

void append(std::vector<std::uint8_t>& out, PictureBytes bytes) { out.insert(out.end(), bytes.begin(), bytes.end()); }

// Missing entries are black and opaque.
bool readPalette(PictureBytes data, PngFile& png) {
  const std::size_t entries = data.size() / 3;
  if (data.size() % 3 != 0 || entries < 1 || entries > 256) {
    return false;
  }
  png.colors = {.palette = createPalette(256), .coverage = {}};
  png.colors->coverage.fill(255);
  for (std::size_t i = 0; i < entries; ++i) {
    png.colors->palette.setEntry(static_cast<std::int32_t>(i), {data[3 * i], data[3 * i + 1], data[3 * i + 2]});
  }
  return true;
}

// Ignores the chunk if it is too short or does not apply to the image.
void readTransparency(PictureBytes data, PngFile& png) {
  if (png.colors) {
    std::ranges::copy(data.first(std::min<std::size_t>(data.size(), 256)), png.colors->coverage.begin());
    return;
  }
  const std::size_t samples = png.format.kind == SampleKind::gray ? 1 : 3;
  if (png.format.hasAlpha || png.format.kind == SampleKind::index || data.size() < 2 * samples) {
    return;
  }
  TransparentColor color{.maximum = png.format.maximum};
  for (std::size_t i = 0; i < color.samples.size(); ++i) {
    color.samples[i] = static_cast<std::uint16_t>(u16be(data.subspan(2 * std::min(i, samples - 1))) & color.maximum);
  }
  png.transparentColor = color;
}

}  // namespace

std::uint32_t pngChecksum(PictureBytes bytes) {
  std::uint32_t checksum = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) {
    checksum = checksum >> 8 ^ kRemainders[(checksum ^ byte) & 0xFF];
  }
  return ~checksum;
}

std::expected<PngFile, Failure> readPngFile(PictureBytes file) {
  if (file.size() < kSignature.size() || !std::ranges::equal(file.first(kSignature.size()), kSignature)) {
    return std::unexpected(Failure::pictureDamaged);
  }
  PictureBytes rest = file.subspan(kSignature.size());
  const auto header = takeChunk(rest);
  if (!header || header->tag != "IHDR" || header->data.size() != kHeaderLength || !isIntact(*header)) {
    return std::unexpected(Failure::pictureDamaged);
  }
  auto png = readHeader(header->data);
  if (!png) {
    return png;
  }
  const bool isIndexed = png->format.kind == SampleKind::index;
  append(png->samples, file.first(kSignature.size() + header->whole.size()));
  for (bool hasSamples = false, isComplete = false; !isComplete;) {
    const auto chunk = takeChunk(rest);
    if (!chunk) {
      return std::unexpected(Failure::pictureDamaged);
    }
    const bool isPalette = isIndexed && chunk->tag == "PLTE";
    const bool isTransparency = chunk->tag == "tRNS";
    const bool isSamples = chunk->tag == "IDAT";
    isComplete = chunk->tag == "IEND";
    if (!isPalette && !isTransparency && !isSamples && !isComplete) {
      continue;
    }
    if (!isIntact(*chunk) || (isPalette && (hasSamples || png->colors || !readPalette(chunk->data, *png)))) {
      return std::unexpected(Failure::pictureDamaged);
    }
    if (isTransparency) {
      readTransparency(chunk->data, *png);
      continue;
    }
    hasSamples = hasSamples || isSamples;
    append(png->samples, chunk->whole);
  }
  if (isIndexed && !png->colors) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return png;
}

namespace {

bool matches(PictureBytes start) {
  return start.size() >= kSignature.size() && std::ranges::equal(start.first(kSignature.size()), kSignature);
}

PictureResult decode(PictureBytes file, PaletteEntry blank) {
  const auto png = readPngFile(file);
  if (!png) {
    return std::unexpected(png.error());
  }
  return decodePngSamples(*png, blank);
}

}  // namespace

constinit const PictureKind kPngPicture{"png", "PNG image", "signature 89 PNG", "*.png", matches, decode};

}  // namespace quillhue
