#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <sstream>

#include "core/commands/selection.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/table.h"
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

  // The table explains the words.
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
        document.markSaved(std::wstring(L"a"), 1);
        return;
      default:
        selectAll(document);
        return;
    }
    EXPECT_EQ(changed, !(before == document.getPalette())) << action << place;
  }
};

TEST_F(GridSelectionTest, DoesWhatTheTableSays) {
  const std::map<std::string, SelectionMode> modes{
      {"free", SelectionMode::free}, {"row", SelectionMode::row}, {"range", SelectionMode::range}};
  for (const auto& row : readTable("grid_selection.txt")) {
    open(modes.at(row.at(0)));
    perform(row.at(1));
    EXPECT_EQ(state(), row.at(2)) << row[0] << ": " << row[1];
    // Every change is a step that can be undone.
    while (slot.document()->canUndo()) {
      slot.document()->undo();
    }
    EXPECT_EQ(slot.document()->countSelected(), 0) << row[1];
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
