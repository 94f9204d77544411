#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <random>

#include "formats/byte_sort.h"

namespace quillhue {
namespace {

// Palettes depend on the order in which std::sort of libstdc++ leaves words with equal bytes. Sorting only the middle
// has to find the same words there.
void expectStandardOrder(const std::vector<ColorWord>& words, unsigned byte) {
  std::vector<ColorWord> expected = words;
  const auto keyOf = [byte](ColorWord word) { return word >> (8 * byte) & 0xFF; };
  std::sort(expected.begin(), expected.end(), [&](auto left, auto right) { return keyOf(left) < keyOf(right); });
  std::vector<ColorWord> sorted = words;
  sortByByte(sorted, byte);
  ASSERT_EQ(sorted, expected);

  std::vector<ColorWord> middle = words;
  sortMiddleByByte(middle, byte);
  if (!words.empty()) {
    ASSERT_EQ(middle[(words.size() - 1) / 2], expected[(words.size() - 1) / 2]);
    ASSERT_EQ(middle[words.size() / 2], expected[words.size() / 2]);
  }
  std::ranges::sort(middle);
  std::ranges::sort(expected);
  ASSERT_EQ(middle, expected);
}

// The other bytes number the words, so that all words differ.
TEST(ByteSort, LeavesWordsInTheOrderOfTheStandardLibrary) {
  std::mt19937 engine(1);
  const auto random = [&] { return static_cast<std::uint32_t>(engine()); };
  const std::vector<std::function<std::uint32_t(std::uint32_t, std::uint32_t)>> shapes{
      [&](std::uint32_t, std::uint32_t) { return random(); },
      [&](std::uint32_t, std::uint32_t) { return random() % 20 == 0 ? random() : 5; },
      [](std::uint32_t i, std::uint32_t size) { return i * 256 / size; },
      [](std::uint32_t i, std::uint32_t size) { return 255 - i * 256 / size; },
      [](std::uint32_t i, std::uint32_t size) { return std::min(i, size - i) * 511 / size; },
      [](std::uint32_t i, std::uint32_t) { return i * 7; },
      [](std::uint32_t, std::uint32_t) { return 9U; }};
  for (std::uint32_t round = 0; round < 1500; ++round) {
    const std::uint32_t size = random() % (round % 50 == 0 ? 50000 : 1500);
    const std::uint32_t keys = 1U << random() % 9;
    const unsigned byte = random() % 3;
    std::vector<ColorWord> words(size);
    for (std::uint32_t i = 0; i < size; ++i) {
      words[i] = std::rotl(i << 8 | shapes[round % shapes.size()](i, size) % keys, static_cast<int>(8 * byte));
    }
    ASSERT_NO_FATAL_FAILURE(expectStandardOrder(words, byte)) << round;
  }
}

}  // namespace
}  // namespace quillhue
