#include "formats/byte_sort.h"

#include <emmintrin.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace quillhue {

namespace {

// Shorter ranges are left to the insertion sort.
constexpr std::size_t kShort = 16;
// Words whose comparisons fit into 64 bits.
constexpr std::size_t kBlock = 64;

class ByteSort {
 public:
  explicit ByteSort(unsigned byte) : shift_(8 * byte) {}

  void sort(std::span<ColorWord> words) const {
    const auto depth = static_cast<int>(2 * std::bit_width(words.size()));
    sortRoughly(words, depth - 2, false);
    insertionSort(words);
  }

 private:
  [[nodiscard]] std::uint32_t keyOf(ColorWord word) const { return word >> shift_ & 0xFF; }

  // Leaves each word at most kShort places away from where it belongs. `depth` is how deep quicksort may go.
  // If `areEqual`, all keys are known to be equal.
  void sortRoughly(std::span<ColorWord> words, int depth, bool areEqual) const {
    if (words.size() <= kShort) {
      return;
    }
    if (depth == 0) {
      std::partial_sort(words.begin(), words.end(), words.end(),
                        [this](ColorWord left, ColorWord right) { return keyOf(left) < keyOf(right); });
      return;
    }
    if (!areEqual) {
      const ColorWord differences = differencesOf(words);
      if (differences == 0) {
        return;
      }
      areEqual = keyOf(differences) == 0;
    }
    moveMedianToFront(words);
    const auto rest = words.subspan(1);
    const std::size_t cut = 1 + (areEqual ? reverse(rest) : partition(rest, keyOf(words.front())));
    sortRoughly(words.subspan(cut), depth - 1, areEqual);
    sortRoughly(words.first(cut), depth - 1, areEqual);
  }

  // Exchanges the first word with the median of the second, the middle and the last one. The choice among equal words
  // affects the result.
  void moveMedianToFront(std::span<ColorWord> words) const {
    ColorWord& second = words[1];
    ColorWord& middle = words[words.size() / 2];
    ColorWord& last = words.back();
    ColorWord* median = nullptr;
    if (keyOf(second) < keyOf(middle)) {
      median = keyOf(middle) < keyOf(last) ? &middle : keyOf(second) < keyOf(last) ? &last : &second;
    } else {
      median = keyOf(second) < keyOf(last) ? &second : keyOf(middle) < keyOf(last) ? &last : &middle;
    }
    std::swap(words.front(), *median);
  }

  // Returns the bits in which any words differ, or some of them if the keys differ.
  [[nodiscard]] ColorWord differencesOf(std::span<const ColorWord> words) const {
    ColorWord differences = 0;
    const ColorWord first = words.empty() ? 0 : words.front();
    while (!words.empty() && keyOf(differences) == 0) {
      const auto block = words.first(std::min(words.size(), kBlock));
      for (const ColorWord word : block) {
        differences |= word ^ first;
      }
      words = words.subspan(block.size());
    }
    return differences;
  }

  // Partitions words whose keys are all equal.
  static std::size_t reverse(std::span<ColorWord> words) {
    std::ranges::reverse(words);
    return words.size() / 2;
  }

  // Moves keys less than the pivot to the front and greater ones to the back, and returns the start of the back.
  // Searches from the left for a word that is not less and from the right for one that is not greater, exchanges the
  // two, and goes on until the searches meet. A key on each side stops the search.
  [[nodiscard]] std::size_t partition(std::span<ColorWord> words, std::uint32_t pivot) const {
    std::size_t left = 0;
    std::size_t right = words.size();
    std::uint64_t fromLeft = 0;
    std::uint64_t fromRight = 0;
    while (right - left > 2 * kBlock) {
      const auto leftBlock = words.subspan(left).first<kBlock>();
      const auto rightBlock = words.first(right).last<kBlock>();
      fromLeft = fromLeft != 0 ? fromLeft : ~lessThan(leftBlock, pivot);
      fromRight = fromRight != 0 ? fromRight : lessThan(rightBlock, pivot + 1);
      while (fromLeft != 0 && fromRight != 0) {
        const auto first = static_cast<std::size_t>(std::countr_zero(fromLeft));
        const auto last = static_cast<std::size_t>(std::bit_width(fromRight)) - 1;
        std::swap(leftBlock[first], rightBlock[last]);
        fromLeft &= fromLeft - 1;
        fromRight ^= std::uint64_t{1} << last;
      }
      left += fromLeft == 0 ? kBlock : 0;
      right -= fromRight == 0 ? kBlock : 0;
    }
    // Exchanged words must not be compared again: they may equal the pivot.
    left += fromLeft != 0 ? static_cast<std::size_t>(std::countr_zero(fromLeft)) : 0;
    right -= fromRight != 0 ? kBlock - static_cast<std::size_t>(std::bit_width(fromRight)) : 0;
    return meet(words, left, right, pivot);
  }

  // Returns a bit for each word, the lowest for the first: 1 if its key is less than `limit`.
  [[nodiscard]] std::uint64_t lessThan(std::span<const ColorWord, kBlock> words, std::uint32_t limit) const {
    const __m128i shift = _mm_cvtsi32_si128(static_cast<int>(shift_));
    const __m128i limits = _mm_set1_epi32(static_cast<int>(limit));
    const auto four = [&](std::size_t place) {
      const auto keys =
          std::bit_cast<__m128i>(std::array{words[place], words[place + 1], words[place + 2], words[place + 3]});
      return _mm_cmplt_epi32(_mm_and_si128(_mm_srl_epi32(keys, shift), _mm_set1_epi32(0xFF)), limits);
    };
    std::uint64_t bits = 0;
    for (std::size_t place = 0; place < kBlock; place += 16) {
      const __m128i low = _mm_packs_epi32(four(place), four(place + 4));
      const __m128i high = _mm_packs_epi32(four(place + 8), four(place + 12));
      const auto sixteen = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
      bits |= std::uint64_t{sixteen} << place;
    }
    return bits;
  }

  // Ends a partition one word at a time.
  [[nodiscard]] std::size_t meet(std::span<ColorWord> words, std::size_t left, std::size_t right,
                                 std::uint32_t pivot) const {
    for (;; ++left) {
      while (keyOf(words[left]) < pivot) {
        ++left;
      }
      do {
        --right;
      } while (keyOf(words[right]) > pivot);
      if (left >= right) {
        return left;
      }
      std::swap(words[left], words[right]);
    }
  }

  void insertionSort(std::span<ColorWord> words) const {
    for (std::size_t i = 1; i < words.size(); ++i) {
      const ColorWord word = words[i];
      std::size_t place = i;
      for (; place > 0 && keyOf(words[place - 1]) > keyOf(word); --place) {
        words[place] = words[place - 1];
      }
      words[place] = word;
    }
  }

  unsigned shift_;
};

}  // namespace

void sortByByte(std::span<ColorWord> words, unsigned byte) { ByteSort(byte).sort(words); }

}  // namespace quillhue
