#include <gtest/gtest.h>

#include "ui/logic/display_rows.h"
#include "ui/logic/image_view.h"

namespace quillhue {
namespace {

TEST(ImageView, ScrollsWithinTheImage) {
  const struct {
    ScrollRange range;
    std::int32_t position;
    // line back, line forward, page back, page forward, track to 70, start, end
    std::int32_t next[7];
  } cases[] = {
      {{300, 100}, 0, {0, 1, 0, 100, 70, 0, 200}},
      {{300, 100}, 150, {149, 151, 50, 200, 70, 0, 200}},
      // Larger than the view by 50, as large and smaller.
      {{150, 100}, 10, {9, 11, 0, 50, 50, 0, 50}},
      {{100, 100}, 0, {0, 0, 0, 0, 0, 0, 0}},
      {{20, 100}, 0, {0, 0, 0, 0, 0, 0, 0}},
      // A view without height still leads to the last row.
      {{300, 0}, 5, {4, 6, 4, 6, 70, 0, 299}},
      {{300, -20}, 299, {298, 299, 298, 299, 70, 0, 299}},
  };
  for (const auto& [range, position, next] : cases) {
    for (int action = 0; action < 7; ++action) {
      EXPECT_EQ(scrolled(static_cast<ScrollAction>(action), position, 70, range), next[action])
          << range.extent << ' ' << range.page << ' ' << position << ' ' << action;
    }
  }
}

TEST(ImageView, SeesRowsBelowTheStatusText) {
  // 5 + 300 - 24 + 16 is the last one.
  EXPECT_EQ(visibleRows(5, 300, {96}), (RowRange{5, 298}));
  EXPECT_EQ(visibleRows(0, 500, {144}), (RowRange{0, 481}));
}

TEST(DisplayRows, WaitForTheUserToLook) {
  DisplayRows rows;
  EXPECT_EQ(rows.progress(1, {0, 50}), (RowRange{0, 1}));
  EXPECT_EQ(rows.progress(17, {40, 90}), RowRange());
  EXPECT_EQ(rows.progress(33, {40, 90}), RowRange());
  EXPECT_EQ(rows.progress(49, {40, 90}), (RowRange{1, 49}));
  EXPECT_EQ(rows.progress(65, {0, 49}), RowRange());
  EXPECT_EQ(rows.progress(81, {60, 61}), (RowRange{49, 81}));
}

}  // namespace
}  // namespace quillhue
