#include <gtest/gtest.h>

#include "commands/command_table.h"

namespace quillhue {
namespace {

// The numbers of the commands, and where these are offered: on the intro screen and in the tabs Values, Effects and
// Use, with everything there that a command can need (+), or when there is no undo step (u), redo step (r) or current
// entry (c) then not (any of these in place of +).
const struct {
  std::int32_t first;
  std::int32_t last;
  const char* offered;
} kExpected[] = {
    {1, 13, "++++"},  {14, 15, "-+++"}, {16, 16, "++++"}, {20, 20, "-uuu"}, {21, 21, "-rrr"},
    {22, 25, "-c++"}, {26, 28, "-+++"}, {30, 35, "--+-"}, {36, 38, "--c-"}, {39, 50, "--+-"},
    {60, 61, "++++"}, {70, 70, "-c--"}, {71, 71, "--c-"}, {72, 72, "-cc-"},
};

bool offeredWithout(char needed, char offered) { return offered != '-' && offered != needed; }

TEST(CommandTable, OffersWhatHasAnEffect) {
  std::size_t count = 0;
  for (const auto& [first, last, offered] : kExpected) {
    for (std::int32_t id = first; id <= last; ++id) {
      const Command& command = commands()[count++];
      ASSERT_EQ(command.id, id);
      EXPECT_EQ(findCommand(id), &command);
      for (int tab = 0; tab < 4; ++tab) {
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
  for (const std::int32_t none : {-1, 0, 17, 29, 51, 62, 73}) {
    EXPECT_EQ(findCommand(none), nullptr) << none;
  }
  std::string textKeys;
  for (const Command& command : commands()) {
    textKeys += editsText(command.accelerator) ? acceleratorText(command.accelerator) + ' ' : "";
  }
  EXPECT_EQ(textKeys, "Ctrl+Z Ctrl+X Ctrl+C Ctrl+V Del Ctrl+A ");
  EXPECT_FALSE(editsText({.shift = true, .key = kDeleteKey}));
}

}  // namespace
}  // namespace quillhue
