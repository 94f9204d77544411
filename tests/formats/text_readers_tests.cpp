#include <gtest/gtest.h>

#include "formats/readers/palette_readers.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

Colors read(const std::string& text, const std::wstring& name) {
  MemorySource source(bytesOf(text));
  ReadResult result = readPalette({source, name});
  return result ? colorsOf(std::get<FilePalette>(*result).palette) : Colors{};
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}

struct Case {
  std::string text;
  Colors expected;
};

TEST(NumberLines, AreReadByTheirRules) {
  const Case cases[] = {
      {"", {{}}},
      {"\n", {{}}},
      {"1 2 3", {{1, 2, 3}}},
      {"1 2 3\n", {{1, 2, 3}}},
      {"1 2 3\n\n", {{1, 2, 3}, {}}},
      {"1 2 3\r\n4 5 6\r\n", {{1, 2, 3}, {4, 5, 6}}},
      {" \t1\t 2,3", {{1, 2, 3}}},
      {"1 , 2 ;\t3 rest", {{1, 2, 3}}},
      {"1,,2,3", {{1, 0, 2}}},
      {"1 - -2 3", {{1, 0, 2}}},
      {"x1 2 3", {{0, 1, 2}}},
      {"name 1 2 3", {{}}},
      {"256 511 00012", {{0, 255, 12}}},
      {"99999999999999999999 1 2", {{255, 1, 2}}},
      // No number comes from the next line, and a carriage return alone is none.
      {"1 2\n3 4 5", {{1, 2, 0}, {3, 4, 5}}},
      {"1\n,2,3\n", {{1, 0, 0}, {0, 2, 3}}},
      {"1 2\r3 4 5", {{1, 2, 3}}},
      // Of a line 256 bytes are looked at, but it ends where it ends.
      {std::string(250, ' ') + "1 2 345\n7 8 9", {{1, 2, 34}, {7, 8, 9}}},
      {std::string(255, ' ') + "1 2 3\n7 8 9", {{1, 0, 0}, {7, 8, 9}}},
      {"# 1 2 3", {{0, 1, 2}}},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(read(text, L"x.map"), expected) << testing::PrintToString(text);
    EXPECT_EQ(read(text, L"x.csv"), expected) << testing::PrintToString(text);
  }
  EXPECT_EQ(read(repeated("1 2 3\n", 1024), L"x.map"), Colors(1024, PaletteEntry{1, 2, 3}));
  EXPECT_EQ(read(repeated("1 2 3\n", 1030) + "x", L"x.map"), Colors(1024, PaletteEntry{1, 2, 3}));
}

TEST(GimpReader, SkipsCommentsAndNothingElse) {
  const Case cases[] = {
      {"", {{}}},
      {"#only", {{}}},
      {"1 2 3\n# last", {{1, 2, 3}}},
      {"1 2 3\n#\n", {{1, 2, 3}}},
      {"#a\n##\n1 2 3\n", {{1, 2, 3}}},
      {"Name: Sea\nColumns: 4\n1 2 3\tblue\n", {{}, {}, {1, 2, 3}}},
      {" # 1 2\n", {{0, 1, 2}}},
      // The line feed at index 255 is seen, the one at 256 is where the skip of 257 bytes ends, the one at 257 is not.
      {"#" + std::string(254, 'x') + "\n1 2 3\n", {{1, 2, 3}}},
      {"#" + std::string(255, 'x') + "\n1 2 3\n", {{1, 2, 3}}},
      {"#" + std::string(256, 'x') + "\n1 2 3\n", {{}, {1, 2, 3}}},
      {"#" + std::string(256, 'x') + "#\n1 2 3\n", {{1, 2, 3}}},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(read("GIMP Palette\n" + text, L"x"), expected) << testing::PrintToString(text);
  }
  EXPECT_EQ(read("GIMP", L"x"), Colors{{}});
}

TEST(JascReader, ReadsExactlyOneSeparator) {
  const Case cases[] = {
      {"JASC-PAL\r\n0100\r\n1\r\n1 2 3\r\n", {{1, 2, 3}}},
      {"JASC-PAL\n0100\n1\n1 2 3\n", {{1, 2, 3}}},
      {"JASC-PAL\r\n0100\r\n 002\r\n1 2 3\r\n4\t5,6", {{1, 2, 3}, {4, 5, 6}}},
      {"JASC-PAL\n0100\n1\n1  2 3\n", {{1, 0, 2}}},
      {"JASC-PAL\n0100\n2\n1  2 3\n4 5 6\n", {{1, 0, 2}, {3, 4, 5}}},
      {"JASC-PAL\n0100\n2\n1 2\n4 5 6\n", {{1, 2, 4}, {5, 6, 0}}},
      {"JASC-PAL\n0100\n2\n", {{}, {}}},
      {"JASC-PAL\n0100\n1\n256 257 1000\n", {{0, 1, 232}}},
      // Fourteen bytes are looked at.
      {"JASC-PAL\n0100\n1\n11111111111 2 34\n", {{199, 2, 0}}},
      // Any version, searched for its zero only behind index 9.
      {"JASC-PAL\r\n1100\r\n1\r\n1 2 3\r\n", {{1, 2, 3}}},
      {"JASC-PAL\r\n0100\r\n00001\n1 2 3\n", {{1, 2, 3}}},
      {"JASC-PAL\r\n0100\r\n000001\n2 3\n", {}},
      // Letters are no line ends: the next entry begins where they stand.
      {"JASC-PAL\n0100\n2\nab\n1 2 3\n", {{0, 0, 0}, {1, 2, 3}}},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(read(text, L"x"), expected) << testing::PrintToString(text);
  }
}

}  // namespace
}  // namespace quillhue
