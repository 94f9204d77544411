#include <gtest/gtest.h>

#include "core/palette.h"
#include "formats/color_list.h"
#include "support/table.h"

namespace quillhue {
namespace {

TEST(ColorList, ReadsNothingButColors) {
  for (const auto& row : readTable("color_lists.txt")) {
    const auto parsed = parseColorList(row.at(0));
    EXPECT_EQ(parsed.has_value(), !row.at(1).empty()) << row[0];
    EXPECT_EQ(colorListText(parsed.value_or(std::vector<PaletteEntry>{})), row[1]) << row[0];
  }
}

TEST(ColorList, KeepsAsManyColorsAsAPaletteHas) {
  std::vector<PaletteEntry> colors(kMaxPaletteSize + 1, {1, 2, 3});
  const std::string text = colorListText(colors);
  colors.pop_back();
  EXPECT_EQ(parseColorList(text), colors);
  EXPECT_EQ(parseColorList(text + " x"), std::nullopt);
}

}  // namespace
}  // namespace quillhue
