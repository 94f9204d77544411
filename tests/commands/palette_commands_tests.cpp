#include <gtest/gtest.h>

#include "commands/command_table.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

// False for a command that is carried out by the screen.
bool change(std::int32_t command, const PaletteCommandInput& input) {
  const Command& known = *findCommand(command);
  if (known.change != nullptr) {
    known.change(input);
  }
  return known.change != nullptr;
}

// What each command does is tested with the commands themselves; here, that each id means the right one.
TEST(PaletteCommands, AreRunByTheirNumbers) {
  const struct {
    std::int32_t command;
    const char* palette;
    const char* selected;
  } cases[] = {
      // From 9,1,5 1,9,5 9,1,5 4,6,0 with all but the second selected; red and green ticked; the last is the current.
      {33, "9,1,5 1,9,5 9,1,5 4,6,0", "####"},
      {34, "9,1,5 1,9,5 9,1,5 4,6,0", "...."},
      {35, "9,1,5 1,9,5 9,1,5 4,6,0", ".#.."},
      {36, "9,1,5 1,9,5 9,1,5 4,6,0", "...#"},
      {37, "9,1,5 1,9,5 9,1,5 4,6,0", "###."},
      {38, "9,1,5 1,9,5 9,1,5 4,6,0", "...."},
      {39, "9,1,5 1,9,5 9,1,5 4,6,0", "..#."},
      // (9 + 4) / 2, (1 + 6) / 2; the roots of (81 + 16) / 2 and (1 + 36) / 2
      {40, "9,1,5 1,9,5 6,3,5 4,6,0", "#.##"},
      {41, "9,1,5 1,9,5 6,4,5 4,6,0", "#.##"},
      {42, "1,9,5 1,9,5 1,9,5 6,4,0", "#.##"},
      {43, "9,5,1 1,9,5 9,5,1 4,0,6", "#.##"},
      {44, "5,1,9 1,9,5 5,1,9 0,6,4", "#.##"},
      {45, "4,6,5 1,9,5 9,1,5 9,1,0", "#.##"},
      {71, "4,6,5 1,9,5 4,6,5 4,6,0", "#.##"},
  };
  RecordingServices fakes;
  DocumentSlot slot;
  const PaletteEntry colors[] = {{9, 1, 5}, {1, 9, 5}, {9, 1, 5}, {4, 6, 0}};
  for (const auto& [command, palette, selected] : cases) {
    slot.replaceDocument(paletteOf(colors), false, {}, 0, fakes.services);
    PaletteDocument& document = *slot.document();
    for (const std::int32_t index : {0, 2, 3}) {
      document.select(index);
    }
    EXPECT_TRUE(change(command, {document, fakes.settings, 3, 3})) << command;
    EXPECT_EQ(show(document.getPalette()), palette) << command;
    std::string flags;
    for (std::int32_t index = 0; index < 4; ++index) {
      flags += document.isSelected(index) ? '#' : '.';
    }
    EXPECT_EQ(flags, selected) << command;
    EXPECT_EQ(document.modificationCount(), 1) << command;
  }
}

// Blue is not ticked; to sort by it all the same reverses the rest.
TEST(PaletteCommands, SortByTheirNumbers) {
  RecordingServices fakes;
  DocumentSlot slot;
  const PaletteEntry colors[] = {{9, 6, 9}, {0, 9, 9}, {8, 8, 0}};
  const char* const expected[] = {"0,9,9 9,6,9 8,8,0", "0,9,9 8,8,9 9,6,0", "9,6,9 8,8,9 0,9,0", "8,8,9 0,9,9 9,6,0",
                                  "8,8,9 9,6,9 0,9,0"};
  for (std::int32_t command = 46; command <= 50; ++command) {
    slot.replaceDocument(paletteOf(colors), false, {}, 0, fakes.services);
    change(33, {*slot.document(), fakes.settings});
    change(command, {*slot.document(), fakes.settings, 3});
    EXPECT_EQ(show(slot.document()->getPalette()), expected[command - 46]) << command;
  }
}

TEST(PaletteCommands, ChangeSettingsWithoutAStep) {
  RecordingServices fakes;
  DocumentSlot slot;
  slot.replaceDocument(createPalette(2, {7, 8, 9}), false, {}, 0, fakes.services);
  const PaletteCommandInput input{*slot.document(), fakes.settings, kAllChannels, 1};
  for (const std::int32_t command : {32, 31, 30}) {
    EXPECT_TRUE(change(command, input));
    EXPECT_EQ(static_cast<std::int32_t>(fakes.settings.selectionMode), command - 30);
    EXPECT_EQ(commandOf(fakes.settings.selectionMode), command);
  }
  EXPECT_TRUE(change(72, input));
  EXPECT_EQ(fakes.settings.blank, (PaletteEntry{7, 8, 9}));
  EXPECT_EQ(slot.document()->modificationCount(), 0);
}

// One that is for the effects tab has to be run there, and no other.
TEST(PaletteCommands, AreThoseOfTheEffectsTab) {
  RecordingServices fakes;
  DocumentSlot slot;
  slot.replaceDocument(createPalette(2), false, {}, 0, fakes.services);
  for (const Command& command : commands()) {
    const bool isHere = command.scope == CommandScope::effectsTab || command.scope == CommandScope::paletteTabs;
    EXPECT_EQ(change(command.id, {*slot.document(), fakes.settings}), isHere) << command.text;
    EXPECT_NE(command.act == nullptr, command.change == nullptr) << command.text;
  }
}

}  // namespace
}  // namespace quillhue
