#include <gtest/gtest.h>

#include "formats/image_colors.h"
#include "support/bitmaps.h"
#include "support/image_color_cases.h"

namespace quillhue {
namespace {

TEST(ImageColors, EqualThePlainMethod) {
  for (std::uint32_t round = 1; round <= 2000; ++round) {
    CaseBytes bytes(10 + round * 37 % 3200, round);
    ASSERT_EQ(differenceOfColors(bytes), "") << round;
  }
}

// Rows are decoded in blocks. No row may be lost or counted twice between two blocks.
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
