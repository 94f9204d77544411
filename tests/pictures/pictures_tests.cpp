#include <gtest/gtest.h>

#include "pictures/picture_decoder.h"
#include "pictures/png_encoder.h"
#include "pictures/png_file.h"
#include "support/palettes.h"
#include "support/patches.h"
#include "support/shown_image.h"
#include "support/table.h"

namespace quillhue {
namespace {

PictureResult decode(const Bytes& file) {
  const PictureKind* const kind = findPictureKind(file);
  return kind == nullptr ? std::unexpected(Failure::unrecognisedType) : kind->decode(file, {10, 20, 30});
}

Bytes contentOf(const std::vector<std::string>& row) {
  Bytes content = dataFile("pictures/" + row.at(0));
  if (content.empty()) {
    return bytesOf(row[0]);
  }
  patch(content, row.at(1));
  if (row[0].ends_with(".png")) {
    const std::uint32_t checksum = pngChecksum(std::span(content).subspan(12, 17));
    for (std::size_t i = 0; i < 4; ++i) {
      content.at(29 + i) = static_cast<std::uint8_t>(checksum >> (24 - 8 * i));
    }
  }
  return content;
}

TEST(Pictures, DecodeAsTheTableSays) {
  for (const auto& row : readTable("pictures.txt")) {
    EXPECT_EQ(shown(decode(contentOf(row))), row.at(2)) << row[0] << ' ' << row[1];
  }
}

TEST(Pictures, CutShortAreRefused) {
  for (const auto& row : readTable("pictures.txt")) {
    Bytes content = contentOf(row);
    while (!content.empty()) {
      const bool mayEndHere = std::string_view(" \n").contains(static_cast<char>(content.back()));
      content.pop_back();
      EXPECT_TRUE(!decode(content) || mayEndHere) << row[0] << " cut to " << content.size();
    }
  }
}

// The checksums of a PNG file detect all damage that matters, except damage that hides transparency.
TEST(Pictures, DamagedByAByteAreRefusedOrDecode) {
  for (const auto& row : readTable("pictures.txt")) {
    const Bytes whole = contentOf(row);
    const bool isChecked = row[0].ends_with(".png") && !row[2].contains("transparent");
    for (std::size_t i = 0; i < whole.size(); ++i) {
      for (const std::uint8_t value : Bytes{0, 1, 127, 255}) {
        Bytes content = whole;
        content[i] = value;
        const PictureResult image = decode(content);
        EXPECT_TRUE(!image || !isChecked || shown(image) == row[2]) << row[0] << " at " << i;
      }
    }
  }
}

TEST(PngEncoder, WritesWhatTheDecoderReads) {
  for (const auto& [entries, bits] : {std::pair{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 4}, {16, 4}, {17, 8}, {256, 8}}) {
    for (std::int32_t width = 1; width <= 9; ++width) {
      const std::size_t stored = paddedRowLength(width);
      Bytes rows(3 * stored);
      for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = static_cast<std::uint8_t>(i * 11 % static_cast<std::size_t>(entries));
      }
      const auto last = static_cast<std::size_t>(entries) - 1;
      const Bytes file =
          composePng({{width, 3, rows}, entriesOf(variedPalette(entries)), std::bitset<256>().set(last)}).value();
      EXPECT_EQ(file.at(24), bits);
      const PictureResult image = decode(file);
      ASSERT_TRUE(image.has_value());
      Palette colors = resizedCopy(variedPalette(entries), 256, {});
      colors.setEntry(entries - 1, {10, 20, 30});
      const auto& read = image->palette();
      EXPECT_TRUE(read && *read == colors);
      EXPECT_EQ(image->transparentIndexes(), std::bitset<256>().set(last));
      for (std::int32_t y = 0; y < 3; ++y) {
        const auto expected = std::span(rows).subspan(static_cast<std::size_t>(y) * stored);
        EXPECT_EQ(hexOf(image->row(y)), hexOf(expected.first(static_cast<std::size_t>(width))));
      }
    }
  }
}

TEST(PngEncoder, GivesAnIndexWithoutAnEntryTheFirstOne) {
  const Bytes rows{2, 3, 1, 255};
  const auto image = decode(composePng({{4, 1, rows}, entriesOf(variedPalette(3)), {}}).value());
  EXPECT_EQ(image ? hexOf(image->pixels()) : "", "02000100");
}

}  // namespace
}  // namespace quillhue
