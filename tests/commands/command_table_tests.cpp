#include <gtest/gtest.h>

#include "commands/command_table.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/table.h"

namespace quillhue {
namespace {

bool offeredWithout(char needed, char offered) { return offered != '-' && offered != needed; }

// edit.txt tests what the steps do.
TEST(CommandTable, OffersWhatHasAnEffect) {
  std::size_t count = 0;
  std::int32_t before = 0;
  for (const auto& row : readTable("commands.txt")) {
    const auto dash = row.at(0).find('-');
    const std::int32_t last = std::stoi(row[0].substr(dash == std::string::npos ? 0 : dash + 1));
    const std::string& offered = row.at(1);
    for (const std::int32_t id = std::stoi(row[0]); before < id - 1;) {
      EXPECT_EQ(findCommand(++before), nullptr) << before;
    }
    while (before < last) {
      const std::int32_t id = ++before;
      const Command& command = commands()[count++];
      ASSERT_EQ(command.id, id);
      EXPECT_EQ(findCommand(id), &command);
      EXPECT_EQ(command.step, row.size() > 2 ? row[2] : "") << id;
      EXPECT_EQ(command.act == nullptr, command.change != nullptr) << id;
      EXPECT_EQ(command.change != nullptr, !command.step.empty() || (id >= 30 && id <= 32)) << id;
      for (std::size_t tab = 0; tab < 4; ++tab) {
        const auto active = static_cast<ActiveTab>(tab);
        EXPECT_EQ(isEnabled(command, {active, true, true, true}), offered[tab] != '-') << id << ' ' << tab;
        EXPECT_EQ(isEnabled(command, {active, false, true, true}), offeredWithout('u', offered[tab])) << id << tab;
        EXPECT_EQ(isEnabled(command, {active, true, false, true}), offeredWithout('r', offered[tab])) << id << tab;
        EXPECT_EQ(isEnabled(command, {active, true, true, false}), offeredWithout('c', offered[tab])) << id << tab;
        EXPECT_EQ(isHandled(command.scope, active), offered[tab] != '-') << id << tab;
      }
    }
  }
  EXPECT_EQ(commands().size(), count);
  EXPECT_EQ(findCommand(-1), nullptr);
  std::string textKeys;
  for (const Command& command : commands()) {
    textKeys += editsText(command.accelerator) ? acceleratorText(command.accelerator) + ' ' : "";
  }
  EXPECT_EQ(textKeys, "Ctrl+Z Ctrl+X Ctrl+C Ctrl+V Del Ctrl+A ");
  EXPECT_FALSE(editsText({.shift = true, .key = kDeleteKey}));
}

TEST(CommandTable, ChoosesSelectionModesWithoutAStep) {
  RecordingServices fakes;
  DocumentSlot slot;
  slot.replaceDocument({.palette = createPalette(2)}, fakes.services);
  for (const std::int32_t command : {32, 31, 30}) {
    findCommand(command)->change({*slot.document(), fakes.settings});
    EXPECT_EQ(static_cast<std::int32_t>(fakes.settings.selectionMode), command - 30);
    EXPECT_EQ(commandOf(fakes.settings.selectionMode), command);
  }
  EXPECT_EQ(slot.document()->modificationCount(), 0);
}

}  // namespace
}  // namespace quillhue
