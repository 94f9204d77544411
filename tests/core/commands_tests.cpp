#include <gtest/gtest.h>

#include "core/commands/colors.h"
#include "core/commands/exchange.h"
#include "core/commands/selection.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

// edit.txt tests what the commands do with colors, selection and history.
class CommandsTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;

  PaletteDocument& open(std::int32_t size, std::initializer_list<std::int32_t> selected = {}) {
    slot.replaceDocument({.palette = variedPalette(size)}, fakes.services);
    for (const std::int32_t index : selected) {
      slot.document()->select(index);
    }
    return *slot.document();
  }
};

TEST_F(CommandsTest, NeedACurrentEntry) {
  PaletteDocument& document = open(3, {0, 1, 2});
  for (const std::int32_t none : {-1, 3}) {
    selectMatches(document, none);
    selectBrighter(document, none);
    selectDarker(document, none);
    fill(document, kAllChannels, none);
    useAsBlankColor(document, none, fakes.settings);
    EXPECT_FALSE(copyEntry(document, none, fakes));
    clearEntry(document, none, {});
    fakes.clipboard = {{1, 1, 1}};
    pasteEntry(document, none, fakes);
  }
  EXPECT_EQ(document.modificationCount(), 0);
  EXPECT_FALSE(document.canUndo());
  EXPECT_EQ(show(document.getPalette()), show(variedPalette(3)));
  EXPECT_EQ(document.countSelected(), 3);
  EXPECT_EQ(fakes.settings.blank, PaletteEntry());
  EXPECT_EQ(fakes.clipboard, (std::vector<PaletteEntry>{{1, 1, 1}}));
}

TEST_F(CommandsTest, CutClearsOnlyWhatWasCopied) {
  PaletteDocument& document = open(2, {0});
  fakes.clipboardIsBusy = true;
  cutSelection(document, kAllChannels, {9, 9, 9}, fakes);
  EXPECT_FALSE(copyEntry(document, 0, fakes));
  EXPECT_FALSE(document.canUndo());
  fakes.clipboardIsBusy = false;
  cutSelection(document, kAllChannels, {9, 9, 9}, fakes);
  EXPECT_EQ(document.getColor(0), (PaletteEntry{9, 9, 9}));
  EXPECT_EQ(fakes.clipboard, (std::vector<PaletteEntry>{variedPalette(1).entry(0)}));
}

TEST_F(CommandsTest, AnEmptyPaletteOnTheClipboardIsPastedAsAStep) {
  PaletteDocument& document = open(2, {0, 1});
  pasteIntoSelection(document, kAllChannels, fakes);
  EXPECT_FALSE(document.canUndo());
  fakes.clipboard.emplace();
  pasteIntoSelection(document, kAllChannels, fakes);
  EXPECT_TRUE(document.canUndo());
  EXPECT_FALSE(pasteEntry(document, 0, fakes));
  EXPECT_EQ(document.modificationCount(), 1);
  EXPECT_EQ(show(document.getPalette()), show(variedPalette(2)));
}

}  // namespace
}  // namespace quillhue
