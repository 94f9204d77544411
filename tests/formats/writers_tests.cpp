#include <gtest/gtest.h>

#include "formats/writers/palette_writers.h"
#include "support/palettes.h"
#include "support/round_trip.h"

namespace quillhue {
namespace {

using namespace palette_format;

constexpr PaletteEntry kBlank{0xB1, 0xB2, 0xB3};

Bytes compose(std::int32_t size, PaletteFormat format) {
  return composePaletteFile(variedPalette(size), format, kBlank).value();
}

Bytes part(const Bytes& bytes, std::size_t offset, std::size_t length) {
  const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
  return {first, first + static_cast<std::ptrdiff_t>(length)};
}

TEST(Writers, StandAtTheirFormat) {
  PaletteFormat format = 1;
  for (const PaletteWriter* writer : paletteWriters()) {
    EXPECT_EQ(writer->format, format++);
  }
  EXPECT_EQ(paletteWriters().size(), 11U);
}

TEST(Writers, ComposeText) {
  const Colors colors{{0, 10, 255}, {7, 70, 100}};
  struct Case {
    PaletteFormat format;
    const char* text;
  };
  for (const auto& [format, text] :
       {Case{kCsv, "0,10,255\r\n7,70,100\r\n"}, Case{kMap, "0 10 255\r\n7 70 100\r\n"},
        Case{kGimp, "GIMP Palette\n# Edited with Quillhue version 4.2\n0 10 255\n7 70 100\n"},
        Case{kJasc, "JASC-PAL\r\n0100\r\n2\r\n0 10 255\r\n7 70 100\r\n"}}) {
    EXPECT_EQ(composePaletteFile(paletteOf(colors), format, kBlank).value(), bytesOf(text)) << format;
  }
  const std::string head = "JASC-PAL\r\n0100\r\n0\r\n";
  EXPECT_EQ(part(compose(256, kJasc), 0, head.size()), bytesOf(head));
}

TEST(Writers, ComposeRecordsWhereTheyBelong) {
  struct Case {
    PaletteFormat format;
    std::int32_t size;
    std::size_t length;
    std::size_t offset;
    Bytes bytes;
  };
  const Case cases[] = {
      {kAdobeColorTable, 256, 768, 765, {0, 200, 0xF9}},
      {kAdobeColorTable, 200, 772, 597, {200, 200, 0x71, 0xB1, 0xB2, 0xB3}},
      {kAdobeColorTable, 200, 772, 765, {0xB1, 0xB2, 0xB3, 0x00, 0xC8, 0xFF, 0xFF}},
      {kCmp, 16, 62, 0, {'A', 'L', 'C', 'H', 'C', 'M', 'P', 'W', 0, 1, 0, 0, 4, 0, 1, 200, 0}},
      {kCmp, 17, 110, 12, {5, 0, 1, 200, 0, 2, 200, 7}},
      {kCmp, 17, 110, 62, {17, 200, 112, 0xB1, 0xB2, 0xB3}},
      {kCmp, 33, 206, 12, {6, 0}},
      {kCmp, 65, 398, 12, {7, 0}},
      {kCmp, 129, 782, 12, {8, 0}},
      {kColorTable, 2, 1032, 0, {0, 3, 0, 1, 1, 200, 0, 0, 2, 200, 7, 0, 0xB1, 0xB2, 0xB3, 0}},
      {kColorTable, 2, 1032, 64, {0xB1, 0xB2, 0xB3, 0, 0, 0, 0, 0}},
      {kColorTable, 17, 1032, 1024, {0xB1, 0xB2, 0xB3, 0, 0, 0, 0, 0}},
      {kDrHalo, 256, 1584, 0, {0x41, 0x48, 0xE3, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0, 0xFF, 0, 0xFF, 0, 0xFF, 0}},
      {kDrHalo, 256, 1584, 502, {78, 0, 200, 0, 27, 0, 0, 0, 0, 0, 79, 0, 200, 0, 34, 0}},
      {kDrHalo, 256, 1584, 1016, {163, 0, 200, 0, 110, 0, 0, 0, 164, 0, 200, 0, 117, 0}},
      {kDrHalo, 256, 1584, 1528, {248, 0, 200, 0, 193, 0, 0, 0, 249, 0, 200, 0, 200, 0}},
      {kDrHalo, 3, 1584, 1578, {0xB1, 0, 0xB2, 0, 0xB3, 0}},
      {kMsDraw, 101, 458, 0, {0x43, 100, 0, 0}},
      {kMsDraw, 101, 458, 50, {0, 0, 0, 0, 1, 200, 0, 0, 2, 200, 7, 0}},
      {kRiff, 2, 37, 0, {'R', 'I', 'F', 'F', 28, 0, 0, 0, 'P', 'A', 'L', ' ', 'd', 'a', 't', 'a'}},
      {kRiff, 2, 37, 16, {16, 0, 0, 0, 0, 3, 2, 0, 1, 200, 0, 0, 2, 200, 7, 0, 0, 0, 0, 0, 0}},
      {kRiff, 300, 1229, 4, {0xC4, 4, 0, 0}},
      {kWindowsClipboard, 2, 109, 0, {0x50, 0xC3, 1, 0, 9, 0, 16, 0, 0, 0, 93, 0, 0, 0, 0, 0, 'P', 'a', 'l', '&'}},
      {kWindowsClipboard, 2, 109, 20, {'e', 't', 't', 'e', 0, 0}},
      {kWindowsClipboard, 2, 109, 91, {0, 0, 0, 3, 2, 0, 1, 200, 0, 1, 2, 200, 7, 1, 0, 0, 0, 0}},
  };
  for (const Case& row : cases) {
    const Bytes file = compose(row.size, row.format);
    ASSERT_EQ(file.size(), row.length) << row.format << ", " << row.size;
    EXPECT_EQ(part(file, row.offset, row.bytes.size()), row.bytes)
        << row.format << ", " << row.size << " at " << row.offset;
  }
  // A black first entry falls on the header's last zeros.
  const Colors black{{0, 0, 0}, {1, 2, 3}};
  const Bytes implied = composePaletteFile(paletteOf(black), kMsDraw, kBlank).value();
  EXPECT_EQ(implied.size(), 58U);
  EXPECT_EQ(part(implied, 50, 8), (Bytes{0, 0, 0, 0, 1, 2, 3, 0}));
}

TEST(Writers, RefuseInOrder) {
  struct Case {
    PaletteFormat format;
    std::int32_t size;
    std::string_view expected;
  };
  using enum Failure;
  const Case cases[] = {
      {kMsDraw, 101, ""},
      {kMsDraw, 102, textOf(tooLargeForMsDraw)},
      {kMsDraw, 256, textOf(tooLargeForMsDraw)},
      {kMsDraw, 257, textOf(farTooLargeForMsDraw)},
      {kJasc, 256, ""},
      {kJasc, 257, textOf(tooLargeForFormat)},
      {kDrHalo, 300, textOf(tooLargeForFormat)},
      {kGimp, 1024, ""},
      {kRiff, 1024, ""},
      {kWindowsClipboard, 1024, ""},
      {kMsDraw | kMayHoldMore, 300, textOf(mightHoldMore)},
      {kGimp | kMayHoldMore, 1, textOf(mightHoldMore)},
      {12, 256, ""},
      {12, 257, textOf(tooLargeForFormat)},
      {kNone, 257, textOf(tooLargeForFormat)},
  };
  for (const auto& [format, size, expected] : cases) {
    const auto composed = composePaletteFile(createPalette(size), format, kBlank);
    EXPECT_EQ(composed ? "" : textOf(composed.error()), expected) << format << ", " << size;
  }
  EXPECT_EQ(composePaletteFile(createPalette(1), kNone, kBlank).value(), Bytes{});
}

TEST(Writers, ComeBackThroughTheReaders) {
  for (const PaletteWriter* writer : paletteWriters()) {
    for (const std::int32_t size : {1, 2, 15, 16, 17, 32, 33, 64, 65, 100, 101, 128, 129, 255, 256, 257, 300, 1024}) {
      Palette palette = variedPalette(size);
      EXPECT_EQ(checkRoundTrip(palette, *writer, kBlank), "") << writer->name << ", " << size;
      palette.setEntry(0, {});
      EXPECT_EQ(checkRoundTrip(palette, *writer, kBlank), "") << writer->name << ", " << size << ", black first";
      palette.setEntry(size - 1, {});
      EXPECT_EQ(checkRoundTrip(palette, *writer, kBlank), "") << writer->name << ", " << size << ", black twice";
    }
  }
}

}  // namespace
}  // namespace quillhue
