#include <gtest/gtest.h>

#include "formats/readers/palette_readers.h"
#include "formats/work_image.h"
#include "pictures/png_encoder.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

TEST(PngEncoder, WritesThePaletteAndTheFewestBits) {
  for (const auto& [entries, bits] : {std::pair{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 4}, {16, 4}, {17, 8}, {256, 8}}) {
    const Palette palette = variedPalette(entries);
    const Bytes rows(2 * paddedRowLength(3));
    MemorySource source(composePng({{3, 2, rows}, entriesOf(palette), {}}).value());
    EXPECT_EQ(source.u32be(16), 3U);
    EXPECT_EQ(source.u32be(20), 2U);
    EXPECT_EQ(source.u8(24), bits) << entries;
    const ReadResult read = readPalette({source, L""});
    ASSERT_TRUE(read.has_value());
    EXPECT_TRUE(std::get<FilePalette>(*read).palette == palette) << entries;
  }
}

}  // namespace
}  // namespace quillhue
