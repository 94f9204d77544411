#include <gtest/gtest.h>

#include "ui/logic/menus.h"

namespace quillhue {
namespace {

// "1 Text, |, Text [3 Text, 4 Text]" for a command, a separator and a menu of its own.
std::string show(const std::vector<MenuItem>& items) {
  std::string text;
  for (const MenuItem& item : items) {
    text += text.empty() ? "" : ", ";
    text += item.command != 0 ? std::to_string(item.command) + ' ' : "";
    text += item.isSeparator() ? "|" : item.text;
    text += item.items.empty() ? "" : " [" + show(item.items) + ']';
  }
  return text;
}

TEST(Menus, HoldTheCommands) {
  const std::string systemPalettes =
      "[2 CGA (cold 2-bit), 3 CGA (warm 2-bit), 4 CGA (mode 5 2-bit), 5 &CGA (4-bit), 6 &EGA, 7 &VGA, 8 Web &safe, "
      "9 &Windows (4-bit), 10 Windows &halftone]";
  const std::string clipboard = "22 Cu&t\tCtrl+X, 23 &Copy\tCtrl+C, 24 &Paste\tCtrl+V, 25 C&lear\tDel";
  const std::string swapReverseSort =
      "S&wap channels [42 &Red and green, 43 &Green and blue, 44 &Blue and red], 45 &Reverse, "
      "&Sort [46 By &intensity, 47 By &red value, 48 By &green value, 49 By &blue value, 50 By &deviation]";
  const std::string modes = "30 Free selection, 31 Row selection\tCtrl+R, 32 Range selection";
  const std::string rest = "34 Select &none, 35 &Invert selection\tCtrl+I";
  const std::string some = "36 Select &matches, 37 Select &brighter, 38 Select &darker";
  EXPECT_EQ(show(mainMenu()), "&File [1 &New blank palette...\tCtrl+N, New system palette " + systemPalettes +
                                  ", 11 New &greyscale palette..., 12 New &RGB palette..., |, "
                                  "13 &Open...\tCtrl+O, 14 &Save\tCtrl+S, 15 Save &as...\tCtrl+Shift+S, |, 16 E&xit], "
                                  "&Edit [20 &Undo\tCtrl+Z, 21 &Redo\tCtrl+Y, |, " +
                                  clipboard + ", |, 26 R&esize..., |, 27 C&ount colors, 28 &Average color], &Select [" +
                                  modes + ", |, 33 Select &all\tCtrl+A, " + rest + ", |, " + some +
                                  ", 39 Select &redundant], &Colors [40 &Gradient, 41 &Bright gradient, |, " +
                                  swapReverseSort + "], &Help [60 &Read me, 61 &About...]");
  const std::string history = "20 &Undo\tCtrl+Z, 21 &Redo\tCtrl+Y, |, ";
  EXPECT_EQ(show(contextMenus()), "NewPopup " + systemPalettes + ", ValuesPopup [70 &Edit..., |, " + history +
                                      clipboard + ", |, 72 Use as &blank color], EffectsPopup [" + history + clipboard +
                                      ", |, " + modes + ", |, 33 &Select all\tCtrl+A, " + rest + ", " + some +
                                      ", 39 Select re&dundant, |, 40 &Gradient, 41 Bright gradient, " +
                                      swapReverseSort + ", |, 71 &Fill, 72 Use as &blank color]");
  EXPECT_EQ(contextMenus()[kValuesPopup].text, "ValuesPopup");
  EXPECT_EQ(contextMenus()[kEffectsPopup].text, "EffectsPopup");
  EXPECT_EQ(contextMenus()[kNewPopup].text, "NewPopup");
}

}  // namespace
}  // namespace quillhue
