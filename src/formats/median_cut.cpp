#include "formats/median_cut.h"

#include <algorithm>
#include <cstddef>
#include <functional>

#include "formats/byte_sort.h"

namespace quillhue {

namespace {

constexpr std::uint32_t byteOf(ColorWord word, unsigned byte) { return word >> (8 * byte) & 0xFF; }

// Returns the byte of the words to split by: 0 blue, 1 green, 2 red.
// kept on purpose: this does not compare the channels' ranges, but palettes made with it must stay the same.
unsigned splitChannel(std::span<const ColorWord> words) {
  std::uint32_t a = 255;
  std::uint32_t c = 255;
  for (const ColorWord word : words) {
    const std::uint32_t blue = byteOf(word, 0);
    const std::uint32_t red = byteOf(word, 2);
    if (red < a || red != 0) {
      a = blue;
    }
    if (blue < c || blue != 0) {
      c = red;
    }
  }
  const std::uint32_t green = byteOf(words.back(), 1);
  if (c < a) {
    return c < green ? 2 : 1;
  }
  return green <= a ? 1 : 0;
}

void sortBySplitChannel(std::span<ColorWord> words) { sortByByte(words, splitChannel(words)); }

class MedianCut {
 public:
  explicit MedianCut(Palette& palette) : palette_(palette) {}

  // Returns the number of entries added for this segment. The recursion is at most log2(target) deep.
  std::int32_t split(std::span<ColorWord> words, std::int32_t target) {
    std::int32_t added = 0;
    // A segment of a single color gives the same result however it is split.
    while (target >= 2 && std::ranges::adjacent_find(words, std::not_equal_to()) != words.end()) {
      sortBySplitChannel(words);
      const std::size_t half = words.size() / 2;
      const std::int32_t addedByHalf = split(words.first(half), target / 2);
      added += addedByHalf;
      target -= addedByHalf;
      words = words.subspan(half);
    }
    sortMiddleByByte(words, splitChannel(words));
    return added + addMedian(words);
  }

 private:
  std::int32_t addMedian(std::span<const ColorWord> words) {
    const std::size_t count = words.size();
    const PaletteEntry median = colorOf(words[count / 2]);
    // kept on purpose: if only the lower of two medians is new, the upper one is added again, as a duplicate.
    if (contains(median) && (count % 2 == 1 || contains(colorOf(words[(count - 1) / 2])))) {
      return 0;
    }
    palette_.setEntry(filled_++, median);
    return 1;
  }

  [[nodiscard]] bool contains(PaletteEntry color) const {
    for (std::int32_t i = 0; i < filled_; ++i) {
      if (palette_.entry(i) == color) {
        return true;
      }
    }
    return false;
  }

  Palette& palette_;
  std::int32_t filled_ = 0;
};

}  // namespace

void medianCut(std::span<ColorWord> words, std::int32_t target, Palette& palette) {
  if (!words.empty()) {
    MedianCut(palette).split(words, target);
  }
}

}  // namespace quillhue
