#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "remap/remap.h"
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
      {{300, 100}, 200, {199, 200, 100, 200, 70, 0, 200}},
      // Larger than the view by 50, as large, smaller, and nothing at all.
      {{150, 100}, 10, {9, 11, 0, 50, 50, 0, 50}},
      {{100, 100}, 0, {0, 0, 0, 0, 0, 0, 0}},
      {{20, 100}, 0, {0, 0, 0, 0, 0, 0, 0}},
      {{0, 100}, 0, {0, 0, 0, 0, 0, 0, 0}},
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

// A view of 100 rows that scrolls on with every look, and counts the copies of each row.
class Screen : public RemapProgress {
 public:
  Screen(std::int32_t height, std::int32_t scrollStep)
      : scrollStep_(scrollStep), rows_(height), copies_(static_cast<std::size_t>(height)) {}

  bool rowsDone(std::int32_t done, const RemappedImage& /*result*/) override {
    copy(rows_.progress(done, {first_, first_ + 100}));
    for (std::int32_t row = first_; row < std::min(first_ + 100, done); ++row) {
      EXPECT_EQ(copies_[static_cast<std::size_t>(row)], 1) << row << " of " << done;
    }
    first_ += scrollStep_;
    return true;
  }
  const std::vector<int>& finish() {
    copy(rows_.finish());
    return copies_;
  }

 private:
  void copy(const RowRange& range) {
    for (std::int32_t row = range.begin; row < range.end; ++row) {
      ++copies_[static_cast<std::size_t>(row)];
    }
  }

  std::int32_t scrollStep_;
  std::int32_t first_ = 0;
  DisplayRows rows_;
  std::vector<int> copies_;
};

TEST(DisplayRows, ShowsWhatIsDoneAndCopiesEachRowOnce) {
  // Stays at the top, goes with the run, ahead of it, and slower.
  for (const std::int32_t scrollStep : {0, 16, 30, 7}) {
    for (const std::int32_t height : {1, 2, 16, 17, 18, 1000, 3001}) {
      const WorkImage image(1, height, std::nullopt);
      RemappedImage result;
      Screen screen(height, scrollStep);
      ASSERT_TRUE(remapImage(image, createPalette(4), {}, result, screen));
      EXPECT_EQ(screen.finish(), std::vector<int>(static_cast<std::size_t>(height), 1)) << scrollStep << ' ' << height;
    }
  }
}

TEST(DisplayRows, WaitForTheUserToLook) {
  DisplayRows rows(100);
  EXPECT_EQ(rows.progress(1, {0, 50}), (RowRange{0, 1}));
  EXPECT_EQ(rows.progress(17, {40, 90}), RowRange());
  EXPECT_EQ(rows.progress(33, {40, 90}), RowRange());
  EXPECT_EQ(rows.progress(49, {40, 90}), (RowRange{1, 49}));
  EXPECT_EQ(rows.progress(65, {0, 49}), RowRange());
  EXPECT_EQ(rows.progress(81, {60, 61}), (RowRange{49, 81}));
  EXPECT_EQ(rows.finish(), (RowRange{81, 100}));
  EXPECT_TRUE(rows.finish().isEmpty());
}

}  // namespace
}  // namespace quillhue
