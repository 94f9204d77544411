#include "remap/nearest_table.h"

#include <emmintrin.h>

#include <array>
#include <cstring>

#include "remap/color_quad.h"

namespace quillhue {

namespace {

// An address has the high 4 bits of each channel, then the next 2 and then the lowest 2: a cell, which shares its
// candidates, has 64 lines, and a line has 64 neighboring colors, as many as a line of the processor's cache.
constexpr std::size_t kColorsPerLine = 64;
constexpr std::size_t kLines = (std::size_t{1} << 24) / kColorsPerLine;
constexpr std::size_t kLinesPerCell = 64;
constexpr std::size_t kCells = kLines / kLinesPerCell;

using Addresses = std::array<std::uint32_t, 256>;

constexpr Addresses addressesOf(std::uint32_t channel) {
  Addresses addresses{};
  for (std::uint32_t value = 0; value < addresses.size(); ++value) {
    addresses[value] =
        value >> 4 << (12 + 4 * channel) | (value >> 2 & 3) << (6 + 2 * channel) | (value & 3) << (2 * channel);
  }
  return addresses;
}

constexpr std::array<Addresses, 3> kAddresses{addressesOf(0), addressesOf(1), addressesOf(2)};

// The lowest color of a line.
ColorVector lowestOf(std::size_t line) {
  ColorVector color{};
  for (std::size_t channel = 0; channel < color.size(); ++channel) {
    color[channel] =
        static_cast<std::int32_t>((line >> (6 + 4 * channel) & 15) << 4 | (line >> (2 * channel) & 3) << 2);
  }
  return color;
}

// The keys of one color for the 64 of a line, as in KeyGroup: four lanes for blue, then green, then red.
class LineKeys {
 public:
  void lower(const PaletteEntry& color, std::uint8_t index, const ColorVector& lowest) {
    const std::int32_t product = color.blue * lowest[0] + color.green * lowest[1] + color.red * lowest[2];
    const std::int32_t first = keyStart<8>(color, index) - 512 * product;
    const std::int32_t step = 512 * color.blue;
    __m128i redRow = _mm_sub_epi32(_mm_set1_epi32(first), _mm_setr_epi32(0, step, 2 * step, 3 * step));
    auto* least = least_.data();
    for (int red = 0; red < 4; ++red) {
      __m128i keys = redRow;
      for (int green = 0; green < 4; ++green, ++least) {
        least->keys = _mm_min_ps(least->keys, _mm_castsi128_ps(keys));
        keys = _mm_sub_epi32(keys, _mm_set1_epi32(512 * color.green));
      }
      redRow = _mm_sub_epi32(redRow, _mm_set1_epi32(512 * color.red));
    }
  }

  // The nearest indexes + 1.
  void store(std::span<std::uint8_t, kColorsPerLine> line) const {
    const auto indexes = [&](std::size_t place) {
      return _mm_and_si128(_mm_castps_si128(least_[place].keys), _mm_set1_epi32(255));
    };
    for (std::size_t red = 0; red < 4; ++red) {
      const __m128i low = _mm_packs_epi32(indexes(4 * red), indexes(4 * red + 1));
      const __m128i high = _mm_packs_epi32(indexes(4 * red + 2), indexes(4 * red + 3));
      const __m128i bytes = _mm_add_epi8(_mm_packus_epi16(low, high), _mm_set1_epi8(1));
      std::memcpy(&line[16 * red], &bytes, sizeof bytes);
    }
  }

 private:
  // Greater than any key.
  struct Four {
    __m128 keys = _mm_castsi128_ps(_mm_set1_epi32(0x7F000000));
  };
  std::array<Four, kColorsPerLine / 4> least_;
};

}  // namespace

NearestTable::NearestTable(std::span<const PaletteEntry> colors)
    : colors_(colors.begin(), colors.end()),
      candidates_(colors),
      found_(kLines * kColorsPerLine),
      isFilled_(kLines),
      lists_(kCells) {
  // Room for the longest lists, which costs nothing until it is used. No list begins at 0.
  listed_.reserve(1 + kCells * (1 + colors_.size()));
  listed_.push_back(0);
}

void NearestTable::remapRow(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes) {
  pixels_ += static_cast<std::int64_t>(indexes.size());
  const std::uint8_t* const found = found_.all().data();
  const std::uint8_t* pixel = pixels.data();
  for (std::uint8_t& index : indexes) {
    const std::size_t address = kAddresses[0][pixel[0]] | kAddresses[1][pixel[1]] | kAddresses[2][pixel[2]];
    std::uint8_t next = found[address];
    if (next == 0) [[unlikely]] {
      next = resolve(address);
    }
    index = static_cast<std::uint8_t>(next - 1);
    pixel += 3;
  }
}

std::uint8_t NearestTable::resolve(std::size_t address) {
  const std::size_t line = address / kColorsPerLine;
  std::uint8_t& isFilled = isFilled_.all()[line];
  if (isFilled == 0) {
    fill(line);
    isFilled = 1;
    ++filledLines_;
  }
  return found_.all()[address];
}

void NearestTable::fill(std::size_t line) {
  const ColorVector lowest = lowestOf(line);
  LineKeys keys;
  for (const std::uint8_t index : candidatesOf(line / kLinesPerCell)) {
    keys.lower(colors_[index], index, lowest);
  }
  keys.store(found_.all().subspan(line * kColorsPerLine).first<kColorsPerLine>());
}

std::span<const std::uint8_t> NearestTable::candidatesOf(std::size_t cell) {
  std::uint32_t& list = lists_[cell];
  if (list == 0) {
    const ColorVector low = lowestOf(cell * kLinesPerCell);
    const auto indexes = candidates_.within({low, {low[0] + 15, low[1] + 15, low[2] + 15}}, candidates_.all());
    list = static_cast<std::uint32_t>(listed_.size());
    listed_.push_back(static_cast<std::uint8_t>(indexes.size() - 1));
    listed_.insert(listed_.end(), indexes.begin(), indexes.end());
  }
  return std::span(listed_).subspan(list + 1, listed_[list] + std::size_t{1});
}

}  // namespace quillhue
