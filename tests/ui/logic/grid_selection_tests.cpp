#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "core/commands/selection.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/script.h"
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
    slot.replaceDocument({.palette = variedPalette(10)}, fakes.services);
    selection = std::make_unique<GridSelection>(slot, fakes.settings);
    return *slot.document();
  }

  [[nodiscard]] Point middleOf(std::int32_t cell) const { return {50 + cell % 4 * 80, 50 + cell / 4 * 80}; }

  // Returns # for each selected entry, then the undo steps and the current entry.
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
  // Expects the result of each act to say whether the selection has changed.
  void expectTold(const std::function<bool()>& act) const {
    const Palette before = slot.document()->getPalette();
    const bool hasChanged = act();
    EXPECT_EQ(hasChanged, before != slot.document()->getPalette()) << state();
  }

  ScriptActs makeActs() {
    ScriptActs acts{
        {"move", [this](auto& n) { selection->moveTo(n[0]); }},
        {"release", [this](auto&) { selection->finish(); }},
        {"release-shift", [this](auto&) { selection->releaseShift(); }},
        {"undo", [this](auto&) { slot.document()->undo(), selection->paletteChanged(); }},
        {"save", [this](auto&) { slot.document()->markSaved(std::wstring(L"a"), 1); }},
        {"select-all", [this](auto&) { selectAll(*slot.document()); }},
        {"drag", [this](auto& n) { expectTold([&] { return selection->drag(grid, middleOf(n[0])); }); }},
        {"drag-at", [this](auto& n) { expectTold([&] { return selection->drag(grid, {n[0], n[1]}); }); }},
    };
    for (const auto& [held, keys] : std::map<std::string, GridSelection::Keys>{
             {"", {}}, {"shift+", {true, false}}, {"ctrl+", {false, true}}, {"shift+ctrl+", {true, true}}}) {
      acts[held + "press"] = [=, this](auto& n) {
        expectTold([&] { return selection->press(grid, middleOf(n[0]), keys); });
      };
      acts[held + "press-at"] = [=, this](auto& n) {
        expectTold([&] { return selection->press(grid, {n[0], n[1]}, keys); });
      };
      acts[held + "extend"] = [=, this](auto& n) { expectTold([&] { return selection->extendTo(n[0], keys); }); };
      acts[held + "space"] = [=, this](auto&) {
        expectTold([&] { return selection->pressCurrent(grid.columns(), keys); });
      };
    }
    return acts;
  }

 protected:
  const ScriptActs acts_ = makeActs();
};

TEST_F(GridSelectionTest, DoesWhatTheTableSays) {
  const std::map<std::string, SelectionMode> modes{
      {"free", SelectionMode::free}, {"row", SelectionMode::row}, {"range", SelectionMode::range}};
  for (const auto& row : readTable("grid_selection.txt")) {
    open(modes.at(row.at(0)));
    perform(acts_, row.at(1));
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
  perform(acts_, "shift+press=1 release");
  EXPECT_EQ(state(), ".### 2 1");
  // The palette shrinks during a gesture.
  perform(acts_, "press=0");
  document.resize(2);
  EXPECT_FALSE(selection->drag(grid, middleOf(3)));
  slot.replaceDocument({.palette = variedPalette(3)}, fakes.services);
  selection->documentReplaced();
  EXPECT_EQ(state(), "... 0 none");
}

}  // namespace
}  // namespace quillhue
