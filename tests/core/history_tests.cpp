#include <gtest/gtest.h>

#include <memory>

#include "core/document.h"
#include "core/history.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/script.h"
#include "support/table.h"

namespace quillhue {
namespace {

TEST(EditHistory, WalksAndCountsAsTheTableSays) {
  for (const auto& row : readTable("history.txt")) {
    RecordingServices fakes;
    PaletteDocument document({.palette = createPalette(8)}, fakes.settings, fakes);
    const ScriptActs acts{{"set", [&](auto& n) { document.recordColor(0), document.setRed(0, clampToByte(n[0])); }},
                          {"record", [&](auto& n) { document.recordColor(n[0]); }},
                          {"undo", [&](auto&) { document.undo(); }},
                          {"redo", [&](auto&) { document.redo(); }},
                          {"save", [&](auto&) { document.markSaved(std::wstring(L"saved"), 7); }}};
    perform(acts, row.at(0));
    EXPECT_EQ(std::to_string(document.getRed(0)), row.at(1)) << row[0];
    EXPECT_EQ(std::to_string(document.modificationCount()), row.at(2)) << row[0];
    EXPECT_EQ(document.isModified(), row[2] != "0") << row[0];
    EXPECT_EQ(fakes.takeLast("undo/redo: "), row.at(3)) << row[0];
  }
}

TEST(EditHistory, RestoresWholePalettes) {
  RecordingServices fakes;
  PaletteDocument document({.palette = createPalette(8)}, fakes.settings, fakes);
  fakes.settings.blank = {1, 2, 3};
  document.recordColors();
  document.setColor(7, {5, 6, 7});
  document.recordSelection();
  document.select(7);
  document.resize(4);
  document.resize(5);
  const Palette edited = document.getPalette();
  EXPECT_EQ(show(edited), "0,0,0 0,0,0 0,0,0 0,0,0 1,2,3");
  // colors(8) --- selection(8) --- resize to 4 --- resize to 5
  document.undo();
  EXPECT_EQ(document.getSize(), 4);
  document.undo();
  EXPECT_TRUE(document.isSelected(7));
  document.undo();
  EXPECT_EQ(document.countSelected(), 0);
  EXPECT_EQ(document.getGreen(7), 6);
  document.undo();
  EXPECT_EQ(document.getPalette(), createPalette(8));
  for (int i = 0; i < 4; ++i) {
    document.redo();
  }
  EXPECT_EQ(document.getPalette(), edited);
  // Discarding steps of several sizes does not change the palette.
  for (int i = 0; i < 4; ++i) {
    document.undo();
  }
  document.resize(2);
  EXPECT_EQ(document.getPalette(), createPalette(2));
  document.undo();
  EXPECT_EQ(document.getPalette(), createPalette(8));
}

// A deep history must need neither a deep stack nor quadratic time. Recursion over a million records would overflow any
// stack.
TEST(EditHistory, HoldsAMillionSteps) {
  constexpr std::int32_t kSteps = 1'000'000;
  const auto stateOf = [](std::int32_t step) { return PaletteEntry{static_cast<std::uint8_t>(step % 251), 0, 0}; };
  Palette palette = createPalette(1);
  auto history = std::make_unique<EditHistory>();
  for (std::int32_t step = 1; step <= kSteps; ++step) {
    history->push(std::make_unique<PaletteDifferenceColor>(palette, 0));
    palette.setEntry(0, stateOf(step));
  }
  for (std::int32_t step = kSteps - 1; step >= 0; --step) {
    history->undo(palette);
    ASSERT_EQ(palette.entry(0), stateOf(step));
  }
  EXPECT_FALSE(history->canUndo());
  for (std::int32_t step = 1; step <= kSteps; ++step) {
    history->redo(palette);
    ASSERT_EQ(palette.entry(0), stateOf(step));
  }
  EXPECT_FALSE(history->canRedo());
  // A new step discards a third of them. At the end, each stack has a third.
  const auto undoThird = [&] {
    for (std::int32_t step = 0; step < kSteps / 3; ++step) {
      history->undo(palette);
    }
  };
  undoThird();
  history->push(std::make_unique<PaletteDifferenceColor>(palette, 0));
  EXPECT_FALSE(history->canRedo());
  undoThird();
  EXPECT_TRUE(history->canUndo() && history->canRedo());
  history.reset();
}

}  // namespace
}  // namespace quillhue
