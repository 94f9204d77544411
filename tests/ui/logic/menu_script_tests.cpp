#include <gtest/gtest.h>

#include <algorithm>

#include "ui/logic/menu_script.h"

namespace quillhue {
namespace {

TEST(MenuScript, IsTheSourceOfResources) {
  const std::string script = menuScript();
  for (const char* part : {
           "MAINMENU MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"&New blank palette...\\tCtrl+N\", 1\n",
           "    POPUP \"New system palette\"\n    BEGIN\n      MENUITEM \"CGA (cold 2-bit)\", 2\n",
           "\"Windows &halftone\", 10\n    END\n    MENUITEM \"New &greyscale palette...\", 11\n",
           "    MENUITEM SEPARATOR\n    MENUITEM \"&Open...\\tCtrl+O\", 13\n",
           "    MENUITEM \"&Save\\tCtrl+S\", 14, GRAYED\n",
           "  POPUP \"&Edit\", GRAYED\n  BEGIN\n    MENUITEM \"&Undo\\tCtrl+Z\", 20, GRAYED\n",
           "    MENUITEM \"Cu&t\\tCtrl+X\", 22\n",
           "  POPUP \"&Colors\", GRAYED\n",
           "    POPUP \"&Sort\"\n    BEGIN\n      MENUITEM \"By &intensity\", 46\n",
           "    MENUITEM \"&About...\", 61\n  END\nEND\n\nMAINPOPUP MENU\nBEGIN\n  POPUP \"NewPopup\"\n",
           "  POPUP \"ValuesPopup\"\n  BEGIN\n    MENUITEM \"&Edit...\", 70\n",
           "\nMAINACCEL ACCELERATORS\nBEGIN\n  78, 1, VIRTKEY, CONTROL\n",
           "  83, 15, VIRTKEY, CONTROL, SHIFT\n",
           "  46, 25, VIRTKEY\n",
       }) {
    EXPECT_NE(script.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(std::ranges::count(script, '\t'), 0);
  // Save and Save As; Edit, Undo and Redo; Select with the three that compare with the current entry; Colors.
  std::size_t greyed = 0;
  for (auto at = script.find("GRAYED"); at != std::string::npos; at = script.find("GRAYED", at + 1)) {
    ++greyed;
  }
  EXPECT_EQ(greyed, 10U);
  EXPECT_TRUE(script.ends_with("VIRTKEY, CONTROL\nEND\n"));
}

}  // namespace
}  // namespace quillhue
