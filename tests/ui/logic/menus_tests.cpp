#include <gtest/gtest.h>

#include "support/table.h"
#include "ui/logic/menus.h"

namespace quillhue {
namespace {

// Returns the items in the form of the table.
std::string show(const std::vector<MenuItem>& items) {
  std::string text;
  for (const MenuItem& item : items) {
    text += text.empty() ? "" : ", ";
    text += item.command != 0 ? std::to_string(item.command) + ' ' : "";
    text += item.isSeparator() ? "-" : item.text;
    text += item.items.empty() ? "" : " [" + show(item.items) + ']';
  }
  return text;
}

TEST(Menus, HoldTheCommands) {
  std::vector<MenuItem> menus = mainMenu();
  const std::size_t first = menus.size();
  menus.insert(menus.end(), contextMenus().begin(), contextMenus().end());
  EXPECT_EQ(menus.at(first + kNewPopup).text, "NewPopup");
  EXPECT_EQ(menus.at(first + kValuesPopup).text, "ValuesPopup");
  EXPECT_EQ(menus.at(first + kEffectsPopup).text, "EffectsPopup");
  const auto rows = readTable("menus.txt");
  ASSERT_EQ(menus.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(menus[i].text, rows[i].at(0));
    EXPECT_EQ(show(menus[i].items), rows[i].at(1));
  }
}

}  // namespace
}  // namespace quillhue
