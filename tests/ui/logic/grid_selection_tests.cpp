#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "core/commands/selection.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "ui/logic/grid_selection.h"

namespace quillhue {
namespace {

// Ten entries in rows of four, cells of 80 pixels from (10, 10); the last two cells of the third row are empty.
class GridSelectionTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;
  GridLayout grid{boxAt({}, {480, 340}), 10, {96}};
  std::unique_ptr<GridSelection> selection;

  PaletteDocument& open(SelectionMode mode) {
    fakes.settings.selectionMode = mode;
    slot.replaceDocument(variedPalette(10), false, {}, 0, fakes.services);
    selection = std::make_unique<GridSelection>(slot, fakes.settings);
    return *slot.document();
  }

  [[nodiscard]] Point middleOf(std::int32_t cell) const { return {50 + cell % 4 * 80, 50 + cell / 4 * 80}; }

  // Words: keys held (s, c), then what is done: p press, d drag to, m move to, x extend to a cell or to the point
  // X,Y; then r release of the button, h of Shift, k space; u undo, y redo, w save, a select all.
  void perform(const std::string& words) {
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
      GridSelection::Keys keys;
      for (; word[0] == 's' || word[0] == 'c'; word.erase(0, 1)) {
        (word[0] == 's' ? keys.shift : keys.control) = true;
      }
      performOne(word[0], word.substr(1), keys);
    }
  }

  // # where selected, then the undo steps and the current entry.
  [[nodiscard]] std::string state() const {
    const PaletteDocument& document = *slot.document();
    std::string text;
    for (std::int32_t index = 0; index < document.getSize(); ++index) {
      text += document.isSelected(index) ? '#' : '.';
    }
    const std::int32_t current = selection->currentEntry();
    return text + ' ' + std::to_string(document.modificationCount()) + ' ' +
           (current == kNoEntry ? "none" : std::to_string(current));
  }

 private:
  void performOne(char action, const std::string& place, GridSelection::Keys keys) {
    PaletteDocument& document = *slot.document();
    const auto comma = place.find(',');
    const std::int32_t cell = place.empty() ? 0 : std::stoi(place);
    const Point point = comma == std::string::npos ? middleOf(cell) : Point{cell, std::stoi(place.substr(comma + 1))};
    const Palette before = document.getPalette();
    bool changed = false;
    switch (action) {
      case 'p':
        changed = selection->press(grid, point, keys);
        break;
      case 'd':
        changed = selection->drag(grid, point);
        break;
      case 'm':
        selection->moveTo(cell);
        break;
      case 'x':
        changed = selection->extendTo(cell, keys);
        break;
      case 'k':
        changed = selection->pressCurrent(grid.columns(), keys);
        break;
      case 'r':
        selection->finish();
        break;
      case 'h':
        selection->releaseShift();
        break;
      case 'u':
      case 'y':
        action == 'u' ? document.undo() : document.redo();
        selection->paletteChanged();
        return;
      case 'w':
        document.markSaved(L"a", 1);
        return;
      default:
        selectAll(document);
        return;
    }
    EXPECT_EQ(changed, !(before == document.getPalette())) << action << place;
  }
};

TEST_F(GridSelectionTest, SelectsByTheMode) {
  const struct {
    SelectionMode mode;
    const char* words;
    const char* state;
  } cases[] = {
      {SelectionMode::free, "p2 r p2 r", ".......... 2 2"},
      // The state of the first entry for all that are crossed, those too that a fast pointer skips.
      {SelectionMode::free, "p1 d3 d7 r", ".###...#.. 1 1"},
      {SelectionMode::free, "p2 r p0 d3 r p3 d1 r", "#......... 3 3"},
      {SelectionMode::free, "p0 d0 d0 r d3", "#......... 1 0"},
      {SelectionMode::free, "p8 d11 d-50,300 r", "........## 1 8"},
      {SelectionMode::free, "sp1 r cp3 r", ".#.#...... 2 3"},
      // Beside the entries nothing starts.
      {SelectionMode::free, "p10 d9 r", ".......... 0 none"},
      {SelectionMode::free, "p4 r p5,5 d50,50 r", "....#..... 1 4"},
      {SelectionMode::row, "p5 d-30,210 r", "....###### 1 5"},
      {SelectionMode::row, "p1 d9 r p6 d7 r", "####....## 2 6"},
      {SelectionMode::row, "p9 d0 r sp2 r", "....###### 2 2"},
      {SelectionMode::row, "p11 r", ".......... 0 none"},
      {SelectionMode::range, "p3 d8 d4 r", "...##..... 1 4"},
      {SelectionMode::range, "p3 r p3 r", "...#...... 1 3"},
      {SelectionMode::range, "p3 r sp6 r sp1 r", ".###...... 3 1"},
      {SelectionMode::range, "p1 d2 r cp5 d7 d0 r", "######.... 2 0"},
      {SelectionMode::range, "p1 r cp5 r scp7 r", ".#...###.. 3 7"},
      // Without an anchor a range starts where it ends.
      {SelectionMode::range, "sp6 d7 r", "......##.. 1 7"},
      // Out of the grid it goes to the nearest entry, past the end to the last one.
      {SelectionMode::range, "p1 d11 r", ".######### 1 9"},
      {SelectionMode::range, "p9 d-20,-20 r", "########## 1 0"},
  };
  for (const auto& [mode, words, wanted] : cases) {
    open(mode);
    perform(words);
    EXPECT_EQ(state(), wanted) << static_cast<int>(mode) << ": " << words;
    while (slot.document()->canUndo()) {
      slot.document()->undo();
    }
    EXPECT_EQ(slot.document()->countSelected(), 0) << words;
    EXPECT_EQ(slot.document()->modificationCount(), 0) << words;
  }
}

TEST_F(GridSelectionTest, SelectsByKeys) {
  const struct {
    SelectionMode mode;
    const char* words;
    const char* state;
  } cases[] = {
      {SelectionMode::free, "k", ".......... 0 none"},
      {SelectionMode::free, "m2 k m3 k m2 k", "...#...... 3 2"},
      {SelectionMode::row, "m9 k", "........## 1 9"},
      {SelectionMode::range, "m2 k m5 ck m7 k", ".......#.. 3 7"},
      {SelectionMode::range, "m2 k p5 r sk", ".....#.... 2 5"},
      // Moves with Shift are one step until something else comes, in any mode.
      {SelectionMode::free, "m4 x5 x6 x7 x3", "...##..... 1 3"},
      {SelectionMode::row, "m4 x5 h x6", "....###... 2 6"},
      {SelectionMode::range, "p4 r sp6 h d7 r", "....####.. 2 7"},
      {SelectionMode::range, "p1 r cx2 cx3 m7 cx8", ".###...##. 3 8"},
      {SelectionMode::free, "p7 r x8", ".......##. 2 8"},
      {SelectionMode::free, "m7 sp2 r x3", "..##...... 2 3"},
      {SelectionMode::free, "x4", "....#..... 1 4"},
      {SelectionMode::free, "x10", ".......... 0 none"},
      {SelectionMode::range, "p3 d4 x6", "...####... 2 6"},
  };
  for (const auto& [mode, words, wanted] : cases) {
    open(mode);
    perform(words);
    EXPECT_EQ(state(), wanted) << static_cast<int>(mode) << ": " << words;
  }
}

TEST_F(GridSelectionTest, EndsAGestureThatSomethingElseOvertakes) {
  const struct {
    const char* words;
    const char* state;
  } cases[] = {
      {"p1 d2 u d5 r", ".......... 0 2"}, {"p1 d2 a d5 r", "########## 2 2"}, {"p1 d2 w d5 r", ".##....... 0 2"},
      {"m1 x2 u x3", ".###...... 1 3"},   {"m1 x2 a x3", ".###...... 3 3"},
  };
  for (const auto& [words, wanted] : cases) {
    open(SelectionMode::range);
    perform(words);
    EXPECT_EQ(state(), wanted) << words;
  }
}

TEST_F(GridSelectionTest, KeepsTheCurrentEntryInThePalette) {
  PaletteDocument& document = open(SelectionMode::range);
  EXPECT_EQ(selection->currentEntry(), kNoEntry);
  document.resize(4);
  selection->paletteChanged();
  EXPECT_EQ(selection->currentEntry(), kNoEntry);
  document.undo();
  selection->moveTo(9);
  document.resize(4);
  selection->paletteChanged();
  EXPECT_EQ(selection->currentEntry(), 3);
  perform("sp1 r");
  EXPECT_EQ(state(), ".### 2 1");
  // A palette that shrinks under a gesture.
  perform("p0");
  document.resize(2);
  EXPECT_FALSE(selection->drag(grid, middleOf(3)));
  slot.replaceDocument(variedPalette(3), false, {}, 0, fakes.services);
  selection->documentReplaced();
  EXPECT_EQ(state(), "... 0 none");
}

}  // namespace
}  // namespace quillhue
