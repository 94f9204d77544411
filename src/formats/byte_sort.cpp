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

// Words of another range, in its order or the reverse one.
struct Run {
  const ColorWord* first;
  std::ptrdiff_t step;
  std::size_t size;

  [[nodiscard]] ColorWord at(std::size_t place) const { return first[static_cast<std::ptrdiff_t>(place) * step]; }
  // Returns `count` of the words from the place `start` on, in reverse order.
  [[nodiscard]] Run reversed(std::size_t start, std::size_t count) const {
    return {first + static_cast<std::ptrdiff_t>(start + count - 1) * step, -step, count};
  }
};

// Writes `head` and the words of `run` in the order in which quicksort leaves them if all their keys are equal. Each
// step of quicksort exchanges the head with the word in the middle, reverses all words but the head, and divides them.
void writeEqual(ColorWord head, const Run& run, ColorWord* out) {
  const std::size_t size = run.size + 1;
  if (size <= kShort) {
    *out = head;
    for (std::size_t i = 0; i < run.size; ++i) {
      out[i + 1] = run.at(i);
    }
    return;
  }
  const std::size_t cut = 1 + run.size / 2;
  writeEqual(run.at(size / 2 - 1), run.reversed(size - cut, cut - 1), out);
  writeEqual(head, run.reversed(0, size - cut - 1), out + cut);
}

// Larger ranges of words with equal keys are moved step by step.
constexpr std::size_t kMostWritten = 8192;

// Not inlined, because every step of the recursion that calls it would have the array on its stack.
[[gnu::noinline]] void sortEqual(std::span<ColorWord> words) {
  std::array<ColorWord, kMostWritten> source;
  std::ranges::copy(words, source.begin());
  writeEqual(source.front(), {&source[1], 1, words.size() - 1}, words.data());
}

class ByteSort {
 public:
  // Leaves the words outside `needed`, a part of the words to sort, in any order.
  ByteSort(unsigned byte, std::span<const ColorWord> needed) : shift_(8 * byte), needed_(needed) {}

  void sort(std::span<ColorWord> words) const { sort(words, 2 * widthOf(words.size()) - 2, false); }

 private:
  [[nodiscard]] static int widthOf(std::size_t size) { return static_cast<int>(std::bit_width(size)); }
  [[nodiscard]] std::uint32_t keyOf(ColorWord word) const { return word >> shift_ & 0xFF; }

  // `depth` is how deep quicksort may go. If `areEqual`, all keys are known to be equal.
  void sort(std::span<ColorWord> words, int depth, bool areEqual) const {
    const bool isNeeded =
        words.data() < needed_.data() + needed_.size() && needed_.data() < words.data() + words.size();
    if (!isNeeded) {
      return;
    }
    if (words.size() <= kShort) {
      insertionSort(words);
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
    if (areEqual && words.size() <= kMostWritten && depth >= widthOf(words.size())) {
      sortEqual(words);
      return;
    }
    moveMedianToFront(words);
    const auto rest = words.subspan(1);
    const std::size_t cut = 1 + (areEqual ? reverse(rest) : partition(rest, keyOf(words.front())));
    sort(words.subspan(cut), depth - 1, areEqual);
    sort(words.first(cut), depth - 1, areEqual);
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
      fromLeft = fromLeft != 0 ? fromLeft : ~lessThan<false>(leftBlock, pivot);
      fromRight = fromRight != 0 ? fromRight : lessThan<true>(rightBlock, pivot + 1);
      while (fromLeft != 0 && fromRight != 0) {
        std::swap(leftBlock[lowestBit(fromLeft)], rightBlock[kBlock - 1 - lowestBit(fromRight)]);
        fromLeft &= fromLeft - 1;
        fromRight &= fromRight - 1;
      }
      left += fromLeft == 0 ? kBlock : 0;
      right -= fromRight == 0 ? kBlock : 0;
    }
    // Exchanged words must not be compared again: they may equal the pivot.
    left += fromLeft != 0 ? lowestBit(fromLeft) : 0;
    right -= fromRight != 0 ? lowestBit(fromRight) : 0;
    return meet(words, left, right, pivot);
  }

  [[nodiscard]] static std::size_t lowestBit(std::uint64_t bits) {
    return static_cast<std::size_t>(std::countr_zero(bits));
  }

  // Returns a bit for each word, the lowest for the first, or for the last if `isReversed`: 1 if its key is less than
  // `limit`.
  template <bool isReversed>
  [[nodiscard]] std::uint64_t lessThan(std::span<const ColorWord, kBlock> words, std::uint32_t limit) const {
    const __m128i shift = _mm_cvtsi32_si128(static_cast<int>(shift_));
    const __m128i limits = _mm_set1_epi32(static_cast<int>(limit));
    const auto four = [&](std::size_t place) {
      const std::size_t start = isReversed ? kBlock - 4 - place : place;
      const auto inOrder =
          std::bit_cast<__m128i>(std::array{words[start], words[start + 1], words[start + 2], words[start + 3]});
      const __m128i keys = isReversed ? _mm_shuffle_epi32(inOrder, _MM_SHUFFLE(0, 1, 2, 3)) : inOrder;
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
  std::span<const ColorWord> needed_;
};

}  // namespace

void sortByByte(std::span<ColorWord> words, unsigned byte) { ByteSort(byte, words).sort(words); }

void sortMiddleByByte(std::span<ColorWord> words, unsigned byte) {
  if (!words.empty()) {
    ByteSort(byte, words.subspan((words.size() - 1) / 2, 2 - words.size() % 2)).sort(words);
  }
}

}  // namespace quillhue
