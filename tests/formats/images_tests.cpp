#include <gtest/gtest.h>

#include "formats/bitmap_writer.h"
#include "formats/image_file.h"
#include "formats/images/image_loaders.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/patches.h"
#include "support/scratch_folder.h"
#include "support/shown_image.h"
#include "support/table.h"

namespace quillhue {
namespace {

// Returns zeros with "offset:bytes ..." written over them.
Bytes contentOf(std::size_t size, const std::string& patches) {
  Bytes content(size);
  patch(content, patches);
  return content;
}

TEST(Images, LoadAsTheTableSays) {
  for (const auto& row : readTable("images.txt")) {
    MemorySource source(contentOf(std::stoul(row.at(0)), row.at(1)));
    EXPECT_EQ(shown(loadImage(source)), row.at(2)) << row[1];
  }
}

TEST(Images, LoadFromTheClipboard) {
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "4:02 8:02 14:18 40:0102030405060000070809"))),
            "2x2: 070809000000 010203040506");
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "4:01 8:01 14:08 44:0A0B0C 1064:05"))), "1x1, 256 (12,11,10): 05");
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "4:01 8:01 14:01"))),
            "Clipboard must contain a 4-bit, 8-bit, 24-bit, or 32-bit bitmap.");
  EXPECT_EQ(shown(loadClipboardImage({})), "The image is too small.");
  // With masks, the pixels follow the masks, or a longer header that contains them.
  const std::string masked = " 4:01 8:01 14:20 16:03 ";
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "0:28" + masked + "40:0000FF0000FF0000FF000000 52:01020304"))),
            "1x1: 010203");
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "0:6C" + masked + "40:FF00000000FF00000000FF00 108:01020304"))),
            "1x1: 030201");
  EXPECT_EQ(shown(loadClipboardImage(contentOf(0, "0:28 4:02 8:01 14:10 16:03 40:00F80000E00700001F 52:2100FF07"))),
            "2x1: 090400FFFF00");
}

TEST(Images, AFileThatCannotBeLoadedLeavesTheImage) {
  const ScratchFolder folder;
  RecordingServices fakes;
  std::optional<WorkImage> image;
  const auto good = folder.file("a.bmp", contentOf(0, "0:424D 10:36 18:01 22:01 28:18 54:010203"));
  const auto bad = folder.file("b.bmp", contentOf(0, "0:424D 10:36 18:01 22:01 28:11"));
  EXPECT_TRUE(loadImageFile(good, image, fakes));
  EXPECT_FALSE(loadImageFile(bad, image, fakes));
  EXPECT_FALSE(loadImageFile(folder.name("none.bmp"), image, fakes));
  EXPECT_EQ(fakes.takeLines(),
            "error: Windows Bitmap and Clipboard files must contain a 4-bit, 8-bit, 24-bit, or 32-bit bitmap.\n"
            "error: Could not open the file.\n");
  EXPECT_EQ(image ? hexOf(image->pixels()) : "", "010203");
}

// Ends files at every byte, both in rows that are read directly into the image and in others.
TEST(Images, LoadAtEveryLength) {
  for (const auto& row : readTable("images.txt")) {
    Bytes content = contentOf(std::stoul(row.at(0)), row.at(1));
    while (!content.empty()) {
      content.pop_back();
      MemorySource source(content);
      const ImageResult image = loadImage(source);
      EXPECT_TRUE(!image || !image->pixels().empty());
    }
  }
}

// The loader can't test the writer here, because it reads the palette of such a file from the offset of its pixels.
TEST(BitmapWriter, WritesFourBitsUpToSixteenEntries) {
  const Bytes rows = contentOf(24, "0:0102030405 8:F60708090A 16:0B");
  const Bytes file = composeBitmap({5, 3, rows}, variedPalette(2), {7, 8, 9});
  const Bytes head = contentOf(118, "0:424D82 10:76 14:28 18:05 22:03 26:01 28:04 54:00C80100 58:07C80200 62:090807");
  EXPECT_EQ(hexOf(std::span(file).first(66)), hexOf(std::span(head).first(66)));
  EXPECT_EQ(hexOf(std::span(file).subspan(114)), "09080700B00000006789A00012345000");
  // A row is a multiple of 4 bytes.
  EXPECT_EQ(composeBitmap({8, 3, rows}, variedPalette(16), {}).size(), 118U + 3 * 4);
  EXPECT_EQ(composeBitmap({9, 1, rows}, variedPalette(16), {}).size(), 118U + 8);
}

TEST(BitmapWriter, TellsTheColorOfEveryIndex) {
  const auto colors = [](std::int32_t entries) { return bitmapColors(entriesOf(variedPalette(entries)), {7, 8, 9}); };
  // Four bits hold an index up to 15, eight bits any.
  EXPECT_EQ(colors(2)[1], variedPalette(2).entry(1));
  EXPECT_EQ(colors(2)[2], (PaletteEntry{7, 8, 9}));
  EXPECT_EQ(colors(16)[16], variedPalette(16).entry(0));
  EXPECT_EQ(colors(17)[17], (PaletteEntry{7, 8, 9}));
  EXPECT_EQ(colors(300)[255], variedPalette(300).entry(255));
}

TEST(BitmapWriter, WritesWhatTheLoaderReads) {
  for (const std::int32_t entries : {17, 256, 300}) {
    for (std::int32_t width = 1; width <= 9; ++width) {
      const std::size_t stored = paddedRowLength(width);
      Bytes rows(3 * stored);
      for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = static_cast<std::uint8_t>(i % stored < static_cast<std::size_t>(width) ? 11 * i : 0);
      }
      MemorySource source(composeBitmap({width, 3, rows}, variedPalette(entries), {7, 8, 9}));
      EXPECT_EQ(source.size(), source.u32le(2));
      const ImageResult image = loadImage(source);
      ASSERT_TRUE(image.has_value());
      const auto& read = image->palette();
      EXPECT_TRUE(read && *read == resizedCopy(variedPalette(entries), 256, {7, 8, 9}));
      for (std::int32_t y = 0; y < 3; ++y) {
        const auto expected = std::span(rows).subspan(static_cast<std::size_t>(y) * stored);
        EXPECT_EQ(hexOf(image->row(y)), hexOf(expected.first(static_cast<std::size_t>(width))));
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
