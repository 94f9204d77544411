#include <gtest/gtest.h>

#include "core/palette.h"
#include "formats/color_list.h"

namespace quillhue {
namespace {

TEST(ColorList, ReadsNothingButColors) {
  const struct {
    std::string_view text;
    // As it is written again; empty if the text is refused.
    std::string_view colors;
  } cases[] = {
      {"#E8B0B0", "#E8B0B0"},
      {"e8b0b0", "#E8B0B0"},
      {" 0a1b2c,#FFffFF;\t010203\r\n\n#000000\n", "#0A1B2C\r\n#FFFFFF\r\n#010203\r\n#000000"},
      {"", ""},
      {" ,\r\n", ""},
      {"#", ""},
      {"##e8b0b0", ""},
      {"e8b0b", ""},
      {"e8b0b00", ""},
      {"#fff", ""},
      {"e8b0bg", ""},
      {"-e8b0b", ""},
      {"#E8B0B0 red", ""},
      {"color: #E8B0B0", ""},
      {"#E8B0B0#000000", ""},
      {"123456.", ""},
      {{"123456\0", 7}, ""},
  };
  for (const auto& [text, colors] : cases) {
    const auto parsed = parseColorList(text);
    EXPECT_EQ(parsed.has_value(), !colors.empty()) << text;
    EXPECT_EQ(colorListText(parsed.value_or(std::vector<PaletteEntry>{})), colors) << text;
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
