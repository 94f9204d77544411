#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "support/table.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/display_rows.h"
#include "ui/logic/effects_layout.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/grid_navigation.h"
#include "ui/logic/image_view.h"
#include "ui/logic/intro_layout.h"
#include "ui/logic/marker.h"
#include "ui/logic/use_layout.h"
#include "ui/logic/values_layout.h"
#include "ui/logic/window_size.h"

namespace quillhue {
namespace {

using Boxes = std::vector<Rect>;
using Numbers = std::vector<std::int32_t>;

std::ostream& operator<<(std::ostream& text, Point point) { return text << point.x << ',' << point.y; }
std::ostream& operator<<(std::ostream& text, Size size) { return text << size.width << 'x' << size.height; }
std::ostream& operator<<(std::ostream& text, const Rect& box) {
  return text << Point{box.left, box.top} << ',' << Point{box.right, box.bottom};
}

// Adds items in the form of the table, separated by blanks.
template <typename Item>
void add(std::ostringstream& text, const Item& item) {
  if constexpr (requires { item.begin(); }) {
    std::ranges::for_each(item, [&](const auto& each) { add(text, each); });
  } else {
    text << (text.view().empty() ? "" : " ") << item;
  }
}

template <typename... Items>
std::string show(const Items&... items) {
  std::ostringstream text;
  (add(text, items), ...);
  return text.str();
}

Boxes boxesOf(const ValuesLayout& layout) {
  return {layout.surface, layout.leftField, layout.middleField, layout.rightField, layout.modelList};
}
Boxes boxesOf(const EffectsLayout& layout) {
  return {layout.surface, layout.red,   layout.green,      layout.blue, layout.preview,
          layout.reset,   layout.value, layout.effectList, layout.apply};
}
Boxes boxesOf(const UseLayout& layout) {
  return {layout.surface,      layout.status,     layout.imageArea,   layout.view,       layout.horizontalBar,
          layout.verticalBar,  layout.load,       layout.maintain,    layout.nearest,    layout.dither,
          layout.protectColor, layout.color,      layout.protectGrid, layout.widthLabel, layout.gridWidth,
          layout.heightLabel,  layout.gridHeight, layout.process,     layout.saveAs};
}
Boxes introBoxes(Size screen, Scale scale) {
  Boxes boxes;
  for (const IntroButton& button : introButtons()) {
    boxes.push_back(introButtonBox(button, screen, scale));
  }
  return boxes;
}

// Size of the tab, entries, dpi.
GridLayout gridOf(const Numbers& n, Point corner = {7, 30}) {
  return {boxAt(corner, {n.at(0), n.at(1)}), n.at(2), {n.at(3)}};
}
BarsLayout barsOf(const Numbers& n) { return {{n.at(0), n.at(1)}, {n.at(2)}}; }

std::string window(const Numbers& n) { return show(minimumWindowSize({n.at(0)}), defaultWindowSize({n.at(0)})); }
std::string sizing(const Numbers& n) {
  return show(keepMinimum({n.at(2), n.at(3), n.at(4), n.at(5)}, static_cast<SizingEdge>(n.at(1)), {n.at(0)}));
}
std::string frame(const Numbers& n) {
  const Rect screen = screenArea({n.at(0), n.at(1)}, n.at(2));
  const Scale scale{n.at(3)};
  return show(screen, frameArea(screen, scale), frameBackground(screen, scale), statusPartEdges(scale),
              fontHeight(scale));
}
std::string intro(const Numbers& n) {
  return show(introBoxes({n.at(0), n.at(1)}, {n.at(2)}), introButtonFace({n.at(2)}));
}
std::string grid(const Numbers& n) {
  const GridLayout layout = gridOf(n);
  return show(layout.columns(), layout.rows(), layout.cell(), layout.rightEdge(), layout.controlsCenter());
}
std::string hit(const Numbers& n) {
  const Point point{n.at(4), n.at(5)};
  const ContextClick click = contextClick(gridOf(n), point, n.at(2));
  EXPECT_EQ(click.currentEntry, gridOf(n).hitTest(point));
  return click.currentEntry == kNoEntry ? "none" : show(click.currentEntry, click.opensMenu);
}
std::string line(const Numbers& n) {
  const GridLayout layout = gridOf(n);
  const Point to{n.at(6), n.at(7)};
  return show(layout.nearestInside(to), layout.crossedCells({n.at(4), n.at(5)}, to));
}
std::string entry(const Numbers& n) {
  const GridLayout layout = gridOf(n);
  return show(layout.cellBox(n.at(4)), layout.colorBox(n.at(4)), contextMenuPoint(layout, n.at(4)),
              layout.paletteArea());
}
std::string bars(const Numbers& n) {
  const BarsLayout layout = barsOf(n);
  Boxes boxes;
  for (const Bar bar : kBars) {
    boxes.insert(boxes.end(), {layout.barBox(bar), layout.stripBox(bar), layout.zone(bar)});
  }
  return show(boxes, layout.usableHeight(), layout.changingBox());
}
std::string value(const Numbers& n) {
  return show(barsOf(n).markerPoint(static_cast<Bar>(n.at(3)), {n.at(4), n.at(5)}, n.at(6)));
}
std::string bar(const Numbers& n) {
  const auto found = barsOf(n).barAt({n.at(3), n.at(4)});
  return (found ? show(static_cast<int>(*found)) : "none") + ' ' + show(barsOf(n).heightAt(n.at(4)));
}
std::string row(const Numbers& n) { return show(barsOf(n).height(), barsOf(n).positionOfRow(n.at(3))); }
std::string marker(const Numbers& n) { return show(markerAt({n.at(0), n.at(1)}, {n.at(2)})); }
// The corner of the tab follows the numbers of the grid.
std::string values(const Numbers& n) { return show(boxesOf(valuesLayout(gridOf(n, {n.at(4), n.at(5)}), {n.at(3)}))); }
std::string effects(const Numbers& n) { return show(boxesOf(effectsLayout(gridOf(n, {n.at(4), n.at(5)}), {n.at(3)}))); }
std::string use(const Numbers& n) {
  return show(boxesOf(useLayout(boxAt({n.at(4), n.at(5)}, {n.at(0), n.at(1)}), {n.at(2), n.at(2)}, {n.at(3)})));
}
std::string scroll(const Numbers& n) {
  Numbers positions;
  for (int action = 0; action < 7; ++action) {
    positions.push_back(scrolled(static_cast<ScrollAction>(action), n.at(2), 70, {n.at(0), n.at(1)}));
  }
  return show(positions);
}
std::string rows(const Numbers& n) {
  const RowRange range = visibleRows(n.at(0), n.at(1), {n.at(2)});
  return show(range.begin, range.end);
}
std::string next(const Numbers& n) {
  Numbers entries;
  for (int key = 0; key < 8; ++key) {
    entries.push_back(nextEntry(static_cast<GridKey>(key), n.at(2), n.at(0), n.at(1)));
  }
  return show(entries);
}

TEST(Layouts, AreThoseOfTheTable) {
  const std::map<std::string, std::string (*)(const Numbers&)> layouts{
      {"window", window},   {"frame", frame},   {"intro", intro},   {"grid", grid},    {"hit", hit},
      {"line", line},       {"entry", entry},   {"bars", bars},     {"value", value},  {"bar", bar},
      {"row", row},         {"marker", marker}, {"values", values}, {"use", use},      {"scroll", scroll},
      {"effects", effects}, {"rows", rows},     {"next", next},     {"sizing", sizing}};
  for (const auto& cells : readTable("layouts.txt")) {
    std::istringstream numbers(cells.at(1));
    const Numbers given{std::istream_iterator<std::int32_t>(numbers), {}};
    EXPECT_EQ(layouts.at(cells.at(0))(given), cells.at(2)) << cells[0] << ' ' << cells[1];
  }
}

TEST(GridLayout, DiffersWhenCellsMove) {
  EXPECT_EQ(gridOf({480, 340, 3, 96}), gridOf({480, 340, 4, 96}));
  EXPECT_NE(gridOf({480, 340, 3, 96}), gridOf({481, 340, 3, 96}));
  EXPECT_NE(gridOf({480, 340, 3, 96}), gridOf({480, 340, 3, 96}, {8, 30}));
  // The cells are the same, but not the columns and rows: 100 by 50 and 50 by 100 in equal areas.
  EXPECT_NE(gridOf({260, 70, 2, 96}), gridOf({260, 70, 1, 96}));
}

TEST(DisplayRows, WaitForTheUserToLook) {
  DisplayRows display;
  EXPECT_EQ(display.progress(1, {0, 50}), (RowRange{0, 1}));
  EXPECT_EQ(display.progress(17, {40, 90}), RowRange());
  EXPECT_EQ(display.progress(33, {40, 90}), RowRange());
  EXPECT_EQ(display.progress(49, {40, 90}), (RowRange{1, 49}));
  EXPECT_EQ(display.progress(65, {0, 49}), RowRange());
  EXPECT_EQ(display.progress(81, {60, 61}), (RowRange{49, 81}));
}

void expectApart(const Boxes& boxes, const Rect& area, const std::string& where) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Rect& one = boxes[i];
    EXPECT_FALSE(one.isEmpty()) << where << ' ' << i;
    EXPECT_TRUE(area.contains({one.left, one.top}) && area.contains({one.right - 1, one.bottom - 1}))
        << where << ' ' << i;
    for (std::size_t j = 0; j < i; ++j) {
      const Rect& other = boxes[j];
      EXPECT_TRUE(one.right <= other.left || other.right <= one.left || one.bottom <= other.top ||
                  other.bottom <= one.top)
          << where << ' ' << i << " over " << j;
    }
  }
}

// The smallest area of a tab, with thick window frames, is 400 by 245 at 96 dpi.
TEST(Layouts, HaveRoomForEveryControl) {
  for (const std::int32_t dpi : {96, 120, 144, 192}) {
    for (const Size units : {Size{400, 245}, Size{600, 300}, Size{1500, 700}}) {
      const Scale scale{dpi};
      const Rect area = boxAt({10, 40}, scale(units));
      const std::string where = show(dpi, units);
      for (const std::int32_t paletteSize : {1, 2, 256, 1024}) {
        const GridLayout cells(area, paletteSize, scale);
        Rect controls = area;
        controls.left += cells.rightEdge();
        // The surface is below the other controls. A closed list shows 24 units of its box.
        const auto controlsOf = [&](const auto& layout, std::size_t list) {
          Boxes boxes = boxesOf(layout);
          boxes.at(list).bottom = boxes[list].top + scale(24);
          boxes.erase(boxes.begin());
          return boxes;
        };
        const ValuesLayout valuesTab = valuesLayout(cells, scale);
        Boxes boxes = controlsOf(valuesTab, 4);
        const Rect& surface = valuesTab.surface;
        const BarsLayout three({surface.width(), surface.height()}, scale);
        for (const Bar each : kBars) {
          const Rect zone = three.zone(each);
          boxes.push_back(boxAt({surface.left + zone.left, surface.top + zone.top}, {zone.width(), zone.height()}));
        }
        expectApart(boxes, controls, "values " + where);
        expectApart(controlsOf(effectsLayout(cells, scale), 7), controls, "effects " + where);
      }
      Boxes boxes = boxesOf(useLayout(area, scale(Size{17, 17}), scale));
      boxes.erase(boxes.begin() + 2);
      boxes.erase(boxes.begin());
      expectApart(boxes, area, "use " + where);
      const Size screen = scale(units);
      boxes = introBoxes(screen, scale);
      const auto background = introBackground(screen, scale);
      boxes.insert(boxes.end(), background.begin(), background.end());
      expectApart(boxes, boxAt({}, screen), "intro " + where);
      std::int32_t covered = 0;
      for (const Rect& box : boxes) {
        covered += box.width() * box.height();
      }
      EXPECT_EQ(covered, screen.width * screen.height) << where;
    }
  }
}

}  // namespace
}  // namespace quillhue
