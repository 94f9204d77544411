#include <gtest/gtest.h>

#include <map>
#include <set>

#include "ui/logic/command_table.h"
#include "ui/logic/menus.h"

namespace quillhue {
namespace {

// Id, text, and where the command is offered: on the intro screen and in the tabs Values, Effects and Use, with
// everything there that a command can need (+), or when there is no undo step (u), redo step (r) or current entry (c)
// then not (any of these in place of +).
const struct {
  std::int32_t id;
  const char* text;
  const char* offered;
} kExpected[] = {
    {1, "&New blank palette...\tCtrl+N", "++++"},
    {2, "CGA (cold 2-bit)", "++++"},
    {3, "CGA (warm 2-bit)", "++++"},
    {4, "CGA (mode 5 2-bit)", "++++"},
    {5, "&CGA (4-bit)", "++++"},
    {6, "&EGA", "++++"},
    {7, "&VGA", "++++"},
    {8, "Web &safe", "++++"},
    {9, "&Windows (4-bit)", "++++"},
    {10, "Windows &halftone", "++++"},
    {11, "New &greyscale palette...", "++++"},
    {12, "New &RGB palette...", "++++"},
    {13, "&Open...\tCtrl+O", "++++"},
    {14, "&Save\tCtrl+S", "-+++"},
    {15, "Save &as...\tCtrl+Shift+S", "-+++"},
    {16, "E&xit", "++++"},
    {20, "&Undo\tCtrl+Z", "-uuu"},
    {21, "&Redo\tCtrl+Y", "-rrr"},
    {22, "Cu&t\tCtrl+X", "-+++"},
    {23, "&Copy\tCtrl+C", "-+++"},
    {24, "&Paste\tCtrl+V", "-+++"},
    {25, "C&lear\tDel", "-+++"},
    {26, "R&esize...", "-+++"},
    {27, "C&ount colors", "-+++"},
    {28, "&Average color", "-+++"},
    {30, "Free selection", "--+-"},
    {31, "Row selection\tCtrl+R", "--+-"},
    {32, "Range selection", "--+-"},
    {33, "Select &all\tCtrl+A", "--+-"},
    {34, "Select &none", "--+-"},
    {35, "&Invert selection\tCtrl+I", "--+-"},
    {36, "Select &matches", "--c-"},
    {37, "Select &brighter", "--c-"},
    {38, "Select &darker", "--c-"},
    {39, "Select &redundant", "--+-"},
    {40, "&Gradient", "--+-"},
    {41, "&Bright gradient", "--+-"},
    {42, "&Red and green", "--+-"},
    {43, "&Green and blue", "--+-"},
    {44, "&Blue and red", "--+-"},
    {45, "&Reverse", "--+-"},
    {46, "By &intensity", "--+-"},
    {47, "By &red value", "--+-"},
    {48, "By &green value", "--+-"},
    {49, "By &blue value", "--+-"},
    {50, "By &deviation", "--+-"},
    {60, "&Read me", "++++"},
    {61, "&About...", "++++"},
    {70, "&Edit...", "-c--"},
    {71, "&Fill", "--c-"},
    {72, "Use as &blank color", "-cc-"},
};

bool offeredWithout(char needed, char offered) { return offered != '-' && offered != needed; }

TEST(CommandTable, HasEveryCommandOnce) {
  ASSERT_EQ(commands().size(), std::size(kExpected));
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    EXPECT_EQ(commands()[i].id, kExpected[i].id);
    EXPECT_EQ(menuText(commands()[i]), kExpected[i].text);
    EXPECT_EQ(findCommand(kExpected[i].id), &commands()[i]);
  }
  for (const std::int32_t none : {-1, 0, 17, 29, 51, 62, 73}) {
    EXPECT_EQ(findCommand(none), nullptr) << none;
  }
}

TEST(CommandTable, OffersWhatHasAnEffect) {
  for (const auto& [id, text, offered] : kExpected) {
    const Command& command = *findCommand(id);
    for (int tab = 0; tab < 4; ++tab) {
      const auto active = static_cast<ActiveTab>(tab);
      EXPECT_EQ(isEnabled(command, {active, true, true, true}), offered[tab] != '-') << text << ' ' << tab;
      EXPECT_EQ(isEnabled(command, {active, false, true, true}), offeredWithout('u', offered[tab])) << text << tab;
      EXPECT_EQ(isEnabled(command, {active, true, false, true}), offeredWithout('r', offered[tab])) << text << tab;
      EXPECT_EQ(isEnabled(command, {active, true, true, false}), offeredWithout('c', offered[tab])) << text << tab;
      EXPECT_EQ(isHandled(command.handler, active), offered[tab] != '-') << text << tab;
    }
  }
}

// "1 | 2 (3 4)" for a command, a separator and a menu of its own.
std::string show(const std::vector<MenuItem>& items) {
  std::string text;
  for (const MenuItem& item : items) {
    text += text.empty() ? "" : " ";
    if (item.isSeparator()) {
      text += '|';
    } else if (item.command != 0) {
      text += std::to_string(item.command);
    } else {
      text += item.text + " (" + show(item.items) + ')';
    }
  }
  return text;
}

TEST(Menus, HoldTheCommands) {
  EXPECT_EQ(show(mainMenu()),
            "&File (1 New system palette (2 3 4 5 6 7 8 9 10) 11 12 | 13 14 15 | 16) "
            "&Edit (20 21 | 22 23 24 25 | 26 | 27 28) "
            "&Select (30 31 32 | 33 34 35 | 36 37 38 39) "
            "&Colors (40 41 | S&wap channels (42 43 44) 45 &Sort (46 47 48 49 50)) "
            "&Help (60 61)");
  EXPECT_EQ(show(contextMenus()),
            "NewPopup (2 3 4 5 6 7 8 9 10) "
            "ValuesPopup (70 | 22 23 24 25 | 72) "
            "EffectsPopup (30 31 32 | 33 34 35 36 37 38 39 | 40 41 S&wap channels (42 43 44) 45 "
            "&Sort (46 47 48 49 50) | 71 72)");
  EXPECT_EQ(contextMenus()[kValuesPopup].text, "ValuesPopup");
  EXPECT_EQ(contextMenus()[kEffectsPopup].text, "EffectsPopup");
  EXPECT_EQ(contextMenus()[kNewPopup].text, "NewPopup");
}

TEST(Menus, UseTheCommandsTexts) {
  // The texts of a context menu that are not those of the menu bar.
  const std::map<std::int32_t, std::string> others{{39, "Select re&dundant"}, {41, "Bright gradient"}};
  for (const bool isContext : {false, true}) {
    std::vector<MenuItem> open = isContext ? contextMenus() : mainMenu();
    while (!open.empty()) {
      const MenuItem item = open.back();
      open.pop_back();
      open.insert(open.end(), item.items.begin(), item.items.end());
      if (item.command != 0) {
        const auto other = others.find(item.command);
        EXPECT_EQ(item.text, isContext && other != others.end() ? other->second : menuText(*findCommand(item.command)));
      }
    }
  }
}

void expectDifferentLetters(const std::vector<MenuItem>& items) {
  std::set<int> letters;
  for (const MenuItem& item : items) {
    const auto at = item.text.find('&');
    if (at != std::string::npos) {
      EXPECT_TRUE(letters.insert(std::tolower(item.text[at + 1])).second) << item.text;
    }
    expectDifferentLetters(item.items);
  }
}

TEST(Menus, AreChosenFromByDifferentLetters) { expectDifferentLetters(mainMenu()); }

}  // namespace
}  // namespace quillhue
