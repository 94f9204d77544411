#include <gtest/gtest.h>

#include <memory>

#include "core/document.h"
#include "core/history.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

// A document whose first entry's red byte is the state that the timelines below talk about.
class EditHistoryTest : public testing::Test {
 protected:
  void change(std::uint8_t red) {
    document.recordColor(0);
    document.setRed(0, red);
  }
  // `undoRedo` is what the menus were told last, if anything.
  void expect(std::uint8_t red, std::int32_t modifications, const std::string& undoRedo) {
    EXPECT_EQ(document.getRed(0), red);
    EXPECT_EQ(document.modificationCount(), modifications);
    EXPECT_EQ(document.isModified(), modifications != 0);
    EXPECT_EQ(fakes.takeLast("undo/redo: "), undoRedo);
  }

  RecordingServices fakes;
  PaletteDocument document{createPalette(8), false, L"", 0, fakes.settings, fakes};
};

TEST_F(EditHistoryTest, WalksBackAndForthAndCountsModifications) {
  expect(0, 0, "no/no");
  change(1);
  change(2);
  expect(2, 2, "yes/no");
  // 0 --- 1 --- 2
  //       ^
  document.undo();
  expect(1, 1, "yes/yes");
  document.undo();
  expect(0, 0, "no/yes");
  document.redo();
  expect(1, 1, "yes/yes");
  document.redo();
  expect(2, 2, "yes/no");
  // 0 --- 1 --- 2
  //  \-- 3, and 1 and 2 are gone
  document.undo();
  document.undo();
  change(3);
  expect(3, 1, "yes/no");
  document.redo();
  expect(3, 2, "yes/no");
  document.undo();
  expect(0, 1, "no/yes");
}

TEST_F(EditHistoryTest, CountsPastTheEndsOfTheStacksAndFromTheLastSave) {
  document.undo();
  expect(0, -1, "no/no");
  document.redo();
  document.redo();
  expect(0, 1, "no/no");
  change(1);
  document.markSaved(std::wstring(L"saved"), 7);
  expect(1, 0, "yes/no");
  document.undo();
  expect(0, -1, "no/yes");
  // A record past the end counts without a step, and leaves the redo stack alone.
  document.recordColor(8);
  document.recordColor(-1);
  expect(0, 1, "");
  document.redo();
  expect(1, 2, "yes/no");
}

TEST_F(EditHistoryTest, RestoresWholePalettes) {
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
  // Steps of several sizes are discarded, and the palette does not notice.
  for (int i = 0; i < 4; ++i) {
    document.undo();
  }
  document.resize(2);
  EXPECT_EQ(document.getPalette(), createPalette(2));
  document.undo();
  EXPECT_EQ(document.getPalette(), createPalette(8));
}

// Depth must cost neither stack nor quadratic time; recursion over a million records overflows any stack.
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
  // A third of them is discarded by a new step, and at the end a third on either stack.
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
