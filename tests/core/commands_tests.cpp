#include <gtest/gtest.h>

#include "core/commands/colors.h"
#include "core/commands/exchange.h"
#include "core/commands/order.h"
#include "core/commands/selection.h"
#include "core/commands/statistics.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

// What the commands do to colors and selection is tested through the tool, where a line is a test.
class CommandsTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;

  PaletteDocument& open(std::int32_t size, std::initializer_list<std::int32_t> selected = {}) {
    slot.replaceDocument(variedPalette(size), false, {}, 0, fakes.services);
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
    copyEntry(document, none, fakes);
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

TEST_F(CommandsTest, RecordAStepOrNone) {
  using Command = void (*)(PaletteDocument&, RecordingServices&);
  const struct {
    Command command;
    // Steps with nothing, one entry and two entries selected.
    int steps[3];
  } cases[] = {
      {[](auto& document, auto&) { gradient(document, 0); }, {0, 0, 1}},
      {[](auto& document, auto&) { brightGradient(document, 7); }, {0, 0, 1}},
      {[](auto& document, auto&) { reverseSelection(document, 0); }, {0, 0, 0}},
      {[](auto& document, auto&) { reverseSelection(document, 8 | 1); }, {0, 0, 1}},
      {[](auto& document, auto&) { sortByChannel(document, Channel::red, 8); }, {0, 0, 0}},
      {[](auto& document, auto&) { sortByDeviation(document, 4); }, {0, 0, 1}},
      {[](auto& document, auto&) { swapChannels(document, Channel::red, Channel::blue); }, {1, 1, 1}},
      {[](auto& document, auto&) { fill(document, 0, 0); }, {0, 1, 1}},
      {[](auto& document, auto&) { clearSelection(document, 0, {}); }, {1, 1, 1}},
      {[](auto& document, auto&) { selectNone(document); }, {1, 1, 1}},
      {[](auto& document, auto&) { selectMatches(document, 2); }, {1, 1, 1}},
      // Copying leaves an empty clipboard where nothing is selected.
      {[](auto& document, auto& services) { cutSelection(document, 7, {}, services); }, {1, 1, 1}},
      {[](auto& document, auto& services) {
         services.clipboard = {{1, 1, 1}};
         pasteIntoSelection(document, 7, services);
       },
       {1, 1, 1}},
      {[](auto& document, auto& services) {
         services.clipboard.reset();
         pasteIntoSelection(document, 7, services);
       },
       {0, 0, 0}},
  };
  for (const auto& [command, steps] : cases) {
    for (int selected = 0; selected <= 2; ++selected) {
      PaletteDocument& document = open(3);
      for (int index = 0; index < selected; ++index) {
        document.select(index);
      }
      copySelection(document, fakes);
      command(document, fakes);
      EXPECT_EQ(document.modificationCount(), steps[selected]) << &command - &cases[0].command << ' ' << selected;
      document.undo();
      EXPECT_EQ(show(document.getPalette()), show(variedPalette(3)));
      EXPECT_EQ(document.countSelected(), selected);
    }
  }
}

TEST_F(CommandsTest, AnEmptyPaletteOnTheClipboardIsPastedAsAStep) {
  PaletteDocument& document = open(2, {0, 1});
  fakes.clipboard.emplace();
  pasteIntoSelection(document, kAllChannels, fakes);
  EXPECT_TRUE(document.canUndo());
  EXPECT_FALSE(pasteEntry(document, 0, fakes));
  EXPECT_EQ(document.modificationCount(), 1);
  EXPECT_EQ(show(document.getPalette()), show(variedPalette(2)));
}

TEST_F(CommandsTest, LeaveALockedDocumentAsItIs) {
  PaletteDocument& document = open(4, {0, 2, 3});
  fakes.clipboard = {{1, 1, 1}};
  document.lock();
  gradient(document, kAllChannels);
  reverseSelection(document, kAllChannels);
  sortByDeviation(document, kAllChannels);
  swapChannels(document, Channel::red, Channel::green);
  fill(document, kAllChannels, 1);
  pasteIntoSelection(document, kAllChannels, fakes);
  EXPECT_EQ(show(document.getPalette()), show(variedPalette(4)));
}

}  // namespace
}  // namespace quillhue
