#include <gtest/gtest.h>

#include <algorithm>

#include "formats/exports/export_formats.h"
#include "formats/writers/palette_writers.h"
#include "support/palettes.h"
#include "support/round_trip.h"
#include "support/table.h"

namespace quillhue {
namespace {

constexpr PaletteEntry kBlank{0xB1, 0xB2, 0xB3};

TEST(Writers, StandAtTheirFormat) {
  PaletteFormat format = 1;
  for (const PaletteWriter* writer : paletteWriters()) {
    EXPECT_EQ(findPaletteWriter(format), writer);
    EXPECT_EQ(writer->format, format++);
  }
  EXPECT_EQ(findPaletteWriter(format), nullptr);
}

TEST(Writers, PutEveryByteInItsPlace) {
  for (const auto& row : readTable("written.txt")) {
    const auto writer = std::ranges::find(paletteWriters(), row.at(0), &PaletteWriter::name);
    const Bytes file = composePaletteFile(variedPalette(std::stoi(row.at(1))), (*writer)->format, kBlank).value();
    ASSERT_EQ(file.size(), std::stoul(row.at(2))) << row[0] << ' ' << row[1];
    const auto there = std::span(file).subspan(std::stoul(row.at(3)), row.at(4).size() / 2);
    EXPECT_EQ(hexOf(there), row[4]) << row[0] << ' ' << row[1] << " at " << row[3];
  }
}

TEST(Writers, RefuseInOrder) {
  struct Case {
    PaletteFormat format;
    std::int32_t size;
    std::string_view expected;
  };
  using enum Failure;
  using namespace palette_format;
  const auto none = static_cast<PaletteFormat>(paletteWriters().size() + 1);
  for (const auto& [format, size, expected] :
       {Case{kMsDraw, 101, ""}, Case{kMsDraw, 102, textOf(tooLargeForMsDraw)},
        Case{kMsDraw, 256, textOf(tooLargeForMsDraw)}, Case{kMsDraw, 257, textOf(farTooLargeForMsDraw)},
        Case{kJasc, 256, ""}, Case{kJasc, 257, textOf(tooLargeForFormat)}, Case{kGimp, 1024, ""},
        Case{kMsDraw | kMayHoldMore, 300, textOf(mightHoldMore)}, Case{kGimp | kMayHoldMore, 1, textOf(mightHoldMore)},
        Case{none, 256, ""}, Case{none, 257, textOf(tooLargeForFormat)}, Case{kNone, 257, textOf(tooLargeForFormat)}}) {
    const auto composed = composePaletteFile(createPalette(size), format, kBlank);
    EXPECT_EQ(composed ? "" : textOf(composed.error()), expected) << format << ", " << size;
  }
  EXPECT_EQ(composePaletteFile(createPalette(1), kNone, kBlank).value(), Bytes{});
}

TEST(Writers, ComeBackThroughTheReaders) {
  for (const PaletteWriter* writer : paletteWriters()) {
    for (const std::int32_t size : {1, 2, 15, 16, 17, 32, 33, 64, 65, 100, 101, 128, 129, 255, 256, 257, 300, 1024}) {
      Palette palette = variedPalette(size);
      for (const std::int32_t black : {size, 0, size - 1}) {
        if (black < size) {
          palette.setEntry(black, {});
        }
        EXPECT_EQ(checkRoundTrip(palette, *writer, kBlank), "") << writer->name << ", " << size << ", " << black;
      }
    }
  }
  for (const ExportFormat* format : exportFormats()) {
    EXPECT_EQ(checkRoundTrip(variedPalette(1), *format), "") << format->name;
    EXPECT_EQ(checkRoundTrip(variedPalette(1024), *format), "") << format->name;
  }
}

TEST(Exports, NameTheArrayOfCAfterTheFile) {
  ByteSink sink;
  kCExport.compose(createPalette(2, {1, 2, 3}), "3-\xC3\xA9 int", sink);
  EXPECT_EQ(hexOf(sink.take()),
            hexOf(bytesOf("/* 2 entries: red, green, blue. */\nconst unsigned char palette_3____int[6]"
                          " = {\n    1, 2, 3,\n    1, 2, 3,\n};\n")));
}

}  // namespace
}  // namespace quillhue
