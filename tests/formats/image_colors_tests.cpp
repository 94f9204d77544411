#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "formats/image_colors.h"
#include "formats/images/image_loaders.h"
#include "support/bitmaps.h"

namespace quillhue {
namespace {

// The method in its plain form: all pixels in one sorted list. The product must give the same without the list.
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

TEST(ImageColors, EqualThePlainMethod) {
  std::mt19937 generator(20);
  const auto random = [&] { return static_cast<std::uint32_t>(generator()); };
  constexpr PaletteEntry kBlank{1, 2, 3};
  for (int round = 0; round < 400; ++round) {
    const std::uint32_t width = 1 + random() % 40;
    const std::uint32_t height = 1 + random() % 40;
    // From a single color to nearly all different, with fourth bytes constant or not.
    const std::uint32_t colors = 1 + random() % (1U << (random() % 14));
    const std::uint32_t spread = round % 3 == 0 ? 0xFF0F07FF : 0xFFFFFF;
    const std::uint8_t bits = round % 3 == 1 ? 24 : 32;
    std::vector<ColorWord> words(std::size_t{width} * height);
    for (ColorWord& word : words) {
      word = (random() % colors * 2654435761U & spread) | (round % 3 == 2 ? 0x80000000 : 0);
    }
    MemorySource source(bitmapOf(width, bits, words));
    const ImageColors product(TrueColorBitmap::open(source).value());
    const SortedImage plain(words);
    ASSERT_EQ(product.distinctCount(), plain.distinctCount()) << round;
    if (bits == 24) {
      const WorkImage image = loadImage(source).value();
      const ImageColors loaded(image);
      ASSERT_EQ(loaded.distinctCount(), plain.distinctCount()) << round;
      ASSERT_EQ(show(loaded.reducedPalette(16, kBlank)), plain.reduced(16, kBlank)) << round;
    }
    for (const std::int32_t size : {1, 2, 3, 16, 255, 1024}) {
      ASSERT_EQ(show(product.exactPalette(size, kBlank)), plain.exact(size, kBlank)) << round << ", " << size;
      ASSERT_EQ(show(product.reducedPalette(size, kBlank)), plain.reduced(size, kBlank)) << round << ", " << size;
    }
  }
}

// Rows are decoded some at a time; none may be lost or doubled between two blocks.
TEST(ImageColors, CountAcrossBlocks) {
  for (const std::uint32_t width : {1U, 333U, 100'000U}) {
    std::vector<ColorWord> words(width * (200'000 / width));
    for (std::size_t i = 0; i < words.size(); ++i) {
      words[i] = static_cast<ColorWord>(i);
    }
    MemorySource source(bitmapOf(width, 24, words));
    EXPECT_EQ(ImageColors(TrueColorBitmap::open(source).value()).distinctCount(), words.size()) << width;
  }
}

}  // namespace
}  // namespace quillhue
