#include "support/image_color_cases.h"

#include <algorithm>
#include <array>
#include <span>

#include "formats/image_colors.h"
#include "formats/images/image_loaders.h"
#include "support/bitmaps.h"

namespace quillhue {

namespace {

// The plain form of the method: all pixels in one sorted list.
class SortedImage {
 public:
  explicit SortedImage(std::vector<ColorWord> words) : words_(std::move(words)) {
    std::ranges::sort(words_, {}, [](ColorWord word) {
      return (word >> 8 & 0xFF) << 24 | (word & 0xFF) << 16 | (word >> 16 & 0xFF) << 8 | word >> 24;
    });
  }

  [[nodiscard]] std::uint64_t distinctCount() const {
    const auto differ = [&](std::size_t i) { return words_[i] != words_[i - 1] ? 1U : 0U; };
    std::uint64_t count = 1;
    for (std::size_t i = 1; i < words_.size(); ++i) {
      count += differ(i);
    }
    return count;
  }

  [[nodiscard]] std::string exact(std::int32_t size, PaletteEntry blank) const {
    Palette palette = createPalette(size, blank);
    palette.setEntry(0, colorOf(words_[0]));
    std::int32_t filled = 1;
    for (std::size_t i = 1; i < words_.size() && filled < size; ++i) {
      if (colorOf(words_[i]) != colorOf(words_[i - 1])) {
        palette.setEntry(filled++, colorOf(words_[i]));
      }
    }
    return show(palette);
  }

  [[nodiscard]] std::string reduced(std::int32_t size, PaletteEntry blank) const {
    std::vector<ColorWord> kept{words_[0]};
    std::size_t run = 0;
    for (std::size_t i = 1; i < words_.size(); ++i) {
      const bool same = words_[i] == words_[i - 1];
      if (!same || words_.size() / static_cast<std::size_t>(size) > run) {
        kept.push_back(words_[i]);
      }
      run = same ? run + 1 : 1;
    }
    Palette palette = createPalette(size, blank);
    std::int32_t filled = 0;
    split(kept, size, palette, filled);
    return show(palette);
  }

 private:
  static int split(std::span<ColorWord> words, int k, Palette& palette, std::int32_t& filled) {
    const std::size_t m = words.size();
    const auto byte = [channel = splitChannel(words)](ColorWord word) { return word >> (8 * channel) & 0xFF; };
    std::sort(words.begin(), words.end(), [&](ColorWord a, ColorWord b) { return byte(a) < byte(b); });
    if (k >= 2 && m >= 2) {
      const int added = split(words.first(m / 2), k / 2, palette, filled);
      return added + split(words.subspan(m / 2), k - added, palette, filled);
    }
    const auto known = [&](std::size_t i) {
      std::int32_t entry = 0;
      while (entry < filled && palette.entry(entry) != colorOf(words[i])) {
        ++entry;
      }
      return entry < filled;
    };
    if (known(m / 2) && (m % 2 == 1 || known((m - 1) / 2))) {
      return 0;
    }
    palette.setEntry(filled++, colorOf(words[m / 2]));
    return 1;
  }

  static unsigned splitChannel(std::span<const ColorWord> words) {
    unsigned a = 255;
    unsigned c = 255;
    for (const ColorWord word : words) {
      const PaletteEntry color = colorOf(word);
      a = color.red < a ? color.blue : a;
      a = color.red != 0 ? color.blue : a;
      c = color.blue < c ? color.red : c;
      c = color.blue != 0 ? color.red : c;
    }
    const unsigned green = colorOf(words.back()).green;
    return c < a ? (c < green ? 2 : 1) : (green <= a ? 1 : 0);
  }

  std::vector<ColorWord> words_;
};

// Returns pixels of one color up to almost all different, with constant or varying fourth bytes.
std::vector<ColorWord> wordsFrom(CaseBytes& bytes) {
  constexpr std::size_t kMostPixels = 1600;
  constexpr std::array<ColorWord, 3> kSpreads{0xFFFFFF, 0x00F0F0FF, 0xFF0F07FF};
  const ColorWord spread = bytes.anyOf(kSpreads);
  const ColorWord shared = bytes.upTo(1) == 0 ? 0 : 0x80000000;
  const auto number = [&] { return bytes.next() | static_cast<std::uint32_t>(bytes.next()) << 8; };
  const std::uint32_t colors = 1 + number() % (1U << bytes.upTo(13));
  std::vector<ColorWord> words;
  do {
    words.push_back((number() % colors * 2654435761U & spread) | shared);
  } while (bytes.left() >= 2 && words.size() < kMostPixels);
  return words;
}

ColorWord asStored(ColorWord word, std::uint8_t bits) {
  if (bits == 16) {
    return widenField(word & 31) | widenField(word >> 5 & 31) << 8 | widenField(word >> 10 & 31) << 16;
  }
  return bits == 24 ? word & 0xFFFFFF : word;
}

}  // namespace

std::string differenceOfColors(CaseBytes& bytes) {
  constexpr std::array<std::uint8_t, 3> kDepths{16, 24, 32};
  constexpr std::array kSizes{1, 2, 3, 16, 255, 256, 1024};
  constexpr PaletteEntry kBlank{1, 2, 3};
  const std::int32_t size = bytes.anyOf(kSizes);
  const std::uint8_t bits = bytes.anyOf(kDepths);
  std::uint32_t width = 1U + bytes.upTo(39);
  std::vector<ColorWord> words = wordsFrom(bytes);
  width = std::min(width, static_cast<std::uint32_t>(words.size()));
  words.resize(words.size() / width * width);
  MemorySource source(bitmapOf(width, bits, words));
  std::ranges::transform(words, words.begin(), [&](ColorWord word) { return asStored(word, bits); });
  const SortedImage plain(words);
  const auto differs = [&](const ImageColors& colors) {
    return colors.distinctCount() != plain.distinctCount()                            ? "another count"
           : show(colors.exactPalette(size, kBlank)) != plain.exact(size, kBlank)     ? "another exact palette"
           : show(colors.reducedPalette(size, kBlank)) != plain.reduced(size, kBlank) ? "another reduced palette"
                                                                                      : "";
  };
  const std::string difference = differs(ImageColors(TrueColorBitmap::open(source).value()));
  return difference.empty() && bits == 24 ? differs(ImageColors(loadImage(source).value())) : difference;
}

std::string plainlyReduced(const std::vector<ColorWord>& words, std::int32_t size) {
  return SortedImage(words).reduced(size, {});
}

}  // namespace quillhue
