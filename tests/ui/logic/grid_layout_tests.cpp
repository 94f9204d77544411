#include <gtest/gtest.h>

#include "ui/logic/grid_layout.h"
#include "ui/logic/grid_navigation.h"

namespace quillhue {
namespace {

using Cells = std::vector<std::int32_t>;

TEST(GridLayout, TakesAsFewAndLargeCellsAsTheAreaAllows) {
  const struct {
    Size area;
    std::int32_t paletteSize;
    std::int32_t dpi;
    std::int32_t columns;
    std::int32_t rows;
    std::int32_t cell;
    std::int32_t rightEdge;
  } cases[] = {
      // Free for cells: 320 by 320.
      {{480, 340}, 1, 96, 1, 1, 320, 332},
      {{480, 340}, 3, 96, 2, 2, 160, 332},
      {{480, 340}, 17, 96, 8, 4, 40, 332},
      {{480, 340}, 256, 96, 16, 16, 20, 332},
      {{480, 340}, 1024, 96, 32, 32, 10, 332},
      // 259 by 320: 259 < 320, so rows double first.
      {{419, 340}, 2, 96, 1, 2, 160, 172},
      // 340 by 100: 340, then 170, then 85 a column, then 50 a row.
      {{500, 120}, 16, 96, 8, 2, 42, 348},
      // At 120 dpi 200 are free for controls, the margin is 12 (12.5): 260 by 320.
      {{460, 344}, 256, 120, 16, 16, 16, 270},
      // Less than nothing: 0 by 0, and -60 by -10.
      {{160, 20}, 4, 96, 4, 1, 0, 12},
      {{100, 10}, 4, 96, 1, 4, -60, -48},
  };
  for (const auto& [area, paletteSize, dpi, columns, rows, cell, rightEdge] : cases) {
    const GridLayout grid(boxAt({7, 30}, area), paletteSize, {dpi});
    EXPECT_EQ(grid.columns(), columns) << area.width << ' ' << paletteSize;
    EXPECT_EQ(grid.rows(), rows) << area.width << ' ' << paletteSize;
    EXPECT_EQ(grid.cell(), cell) << area.width << ' ' << paletteSize;
    EXPECT_EQ(grid.rightEdge(), rightEdge) << area.width << ' ' << paletteSize;
  }
}

TEST(GridLayout, PaintsCellsInTheirPlaces) {
  const GridLayout grid(boxAt({7, 30}, {480, 345}), 3, {96});
  EXPECT_EQ(grid.cellBox(1), (Rect{170, 10, 330, 170}));
  EXPECT_EQ(grid.colorBox(0), (Rect{12, 12, 169, 169}));
  EXPECT_EQ(grid.colorBox(2), (Rect{12, 172, 169, 329}));
  EXPECT_EQ(grid.paletteArea(), (Rect{0, 0, 332, 345}));
  // 7 + (332 + 480) / 2
  EXPECT_EQ(grid.controlsCenter(), 413);
}

TEST(GridLayout, FindsTheCellUnderAPoint) {
  const struct {
    Point point;
    std::int32_t index;
    bool opensMenu;
  } cases[] = {
      {{10, 10}, 0, true},
      {{169, 169}, 0, true},
      {{170, 169}, 1, true},
      {{10, 170}, 2, true},
      // Past the end of the three entries.
      {{170, 170}, 3, false},
      {{9, 100}, kNoEntry, false},
      {{100, 9}, kNoEntry, false},
      {{330, 100}, kNoEntry, false},
      {{100, 330}, kNoEntry, false},
  };
  const GridLayout grid(boxAt({7, 30}, {480, 340}), 3, {96});
  for (const auto& [point, index, opensMenu] : cases) {
    EXPECT_EQ(grid.hitTest(point), index) << point.x << ',' << point.y;
    const ContextClick click = contextClick(grid, point, 3);
    EXPECT_EQ(click.currentEntry, index) << point.x << ',' << point.y;
    EXPECT_EQ(click.opensMenu, opensMenu) << point.x << ',' << point.y;
  }
  EXPECT_EQ(contextMenuPoint(grid, 1), (Point{250, 90}));
  // Cells of one pixel are the smallest that can be hit.
  const GridLayout tiny(boxAt({}, {192, 52}), 1024, {96});
  EXPECT_EQ(tiny.cell(), 1);
  EXPECT_EQ(tiny.hitTest({11, 10}), 1);
  for (const Size tooSmall : {Size{160, 20}, Size{100, 10}, Size{0, 0}, Size{163, 400}}) {
    const GridLayout none(boxAt({}, tooSmall), 1024, {96});
    EXPECT_EQ(none.hitTest({10, 10}), kNoEntry) << tooSmall.width;
    EXPECT_EQ(none.crossedCells({0, 0}, {200, 200}), Cells()) << tooSmall.width;
    EXPECT_EQ(none.nearestInside({100, 100}), (Point{10, 10})) << tooSmall.width;
  }
}

TEST(GridLayout, FollowsThePointer) {
  // 4 by 4 cells of 80 pixels from (10, 10).
  const GridLayout grid(boxAt({}, {480, 340}), 16, {96});
  const struct {
    Point from;
    Point to;
    Cells cells;
  } cases[] = {
      {{15, 15}, {15, 15}, {0}},
      {{15, 15}, {325, 15}, {0, 1, 2, 3}},
      {{325, 15}, {15, 15}, {3, 2, 1, 0}},
      // x passes 90 near y = 138, in the second row.
      {{50, 10}, {150, 329}, {0, 4, 5, 9, 13}},
      // Out of the grid, and through a corner of it.
      {{15, 100}, {-500, 100}, {4}},
      {{-100, 50}, {500, 50}, {0, 1, 2, 3}},
      {{-50, -50}, {-10, 400}, {}},
  };
  for (const auto& [from, to, cells] : cases) {
    EXPECT_EQ(grid.crossedCells(from, to), cells) << to.x << ',' << to.y;
  }
  EXPECT_EQ(grid.nearestInside({-3, 500}), (Point{10, 329}));
  EXPECT_EQ(grid.nearestInside({400, 50}), (Point{329, 50}));
}

TEST(GridLayout, IsRepaintedWhenItDiffers) {
  const GridLayout grid(boxAt({7, 30}, {480, 340}), 3, {96});
  EXPECT_EQ(grid, GridLayout(boxAt({7, 30}, {480, 340}), 4, {96}));
  EXPECT_NE(grid, GridLayout(boxAt({7, 30}, {481, 340}), 3, {96}));
  EXPECT_NE(grid, GridLayout(boxAt({8, 30}, {480, 340}), 3, {96}));
  // The same cells, but other columns and rows: 100 by 50, 50 by 100 in equal areas.
  EXPECT_NE(GridLayout(boxAt({}, {260, 70}), 2, {96}), GridLayout(boxAt({}, {260, 70}), 1, {96}));
}

TEST(GridNavigation, MovesTheCurrentEntry) {
  // Columns 0..3, and in the last row only entries 8 and 9.
  const struct {
    std::int32_t current;
    // left, right, up, down, home, end, page up, page down
    std::int32_t next[8];
  } cases[] = {
      {0, {0, 1, 0, 4, 0, 9, 0, 8}},  {3, {2, 4, 3, 7, 0, 9, 3, 7}},  {4, {3, 5, 0, 8, 0, 9, 0, 8}},
      {6, {5, 7, 2, 6, 0, 9, 2, 6}},  {9, {8, 9, 5, 9, 0, 9, 1, 9}},  {kNoEntry, {0, 0, 0, 0, 0, 9, 0, 0}},
      {10, {0, 0, 0, 0, 0, 9, 0, 0}}, {-1, {0, 0, 0, 0, 0, 9, 0, 0}},
  };
  for (const auto& [current, next] : cases) {
    for (int key = 0; key < 8; ++key) {
      EXPECT_EQ(nextEntry(static_cast<GridKey>(key), current, 10, 4), next[key]) << current << ' ' << key;
    }
  }
  for (int key = 0; key < 8; ++key) {
    EXPECT_EQ(nextEntry(static_cast<GridKey>(key), 0, 1, 1), 0) << key;
  }
}

}  // namespace
}  // namespace quillhue
