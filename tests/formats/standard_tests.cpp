#include <gtest/gtest.h>

#include <set>

#include "core/utf8.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "support/checksum.h"
#include "support/palettes.h"
#include "support/round_trip.h"
#include "support/table.h"

namespace quillhue {
namespace {

Bytes contentOf(const std::string& sample) { return dataFile("standard/" + sample); }

ReadResult readStandard(ByteSource& source, const std::string& name) {
  const std::wstring wideName = fromUtf8(name);
  const ReaderInput input{source, wideName};
  const PaletteReader* const reader = findStandardReader(input);
  return reader == nullptr ? readPalette(input) : reader->read(input);
}

// Returns the failure's text, "image", or the palette as `showPalette` shows it.
template <typename ShowPalette>
std::string paletteIn(Bytes content, const std::string& name, ShowPalette showPalette) {
  MemorySource source(std::move(content));
  const ReadResult result = readStandard(source, name);
  if (!result) {
    return std::string(textOf(result.error()));
  }
  const auto* const file = std::get_if<FilePalette>(&*result);
  return file == nullptr ? "image" : showPalette(file->palette);
}

std::string withChecksum(const Palette& palette) {
  return std::to_string(palette.getSize()) + ' ' + std::to_string(checksumOf(palette));
}

// Returns the size and the checksum of the pixels. Each pixel is followed by 0 if it is transparent, otherwise by 255.
std::string shown(const WorkImage& image) {
  Checksum sum;
  for (std::int32_t y = 0; y < image.height(); ++y) {
    const auto row = image.row(y);
    for (std::size_t x = 0; x < static_cast<std::size_t>(image.width()); ++x) {
      const auto& palette = image.palette();
      sum.add(palette ? palette->entry(row[x]) : PaletteEntry{row[3 * x + 2], row[3 * x + 1], row[3 * x]});
      const bool isTransparent =
          palette ? image.transparentIndexes()[row[x]] : image.hasTransparency() && image.transparentRow(y)[x] != 0;
      sum.add(isTransparent ? 0 : 255);
    }
  }
  return std::to_string(image.width()) + 'x' + std::to_string(image.height()) + ' ' + std::to_string(sum.value());
}

std::string imageIn(Bytes content) {
  MemorySource source(std::move(content));
  const ImageResult image = loadStandardImage(source, {});
  return image ? shown(*image) : std::string(textOf(image.error()));
}

TEST(StandardFormats, HoldWhatTheirListSays) {
  for (const auto& row : readTable("standard.txt")) {
    EXPECT_EQ(paletteIn(contentOf(row.at(0)), row[0], withChecksum), row.at(1)) << row[0];
    if (!row.at(2).empty()) {
      EXPECT_EQ(imageIn(contentOf(row[0])), row[2]) << row[0];
    }
  }
}

// A file that ends early is refused, unless the missing bytes don't matter.
TEST(StandardFormats, RefuseFilesThatEndEarly) {
  for (const auto& row : readTable("standard.txt")) {
    const Bytes whole = contentOf(row.at(0));
    // The palette of such a PCX file is its last 768 bytes, and a text has no other mark of its end.
    const bool endIsFree = isText(whole) || row[0] == "8x1.pcx";
    for (std::size_t length = 4; length < whole.size(); ++length) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      const std::string palette = paletteIn(cut, row[0], withChecksum);
      ASSERT_TRUE(endIsFree || row[0].ends_with(".clp") || palette == row.at(1) || palette.ends_with('.'))
          << row[0] << " at " << length << ": " << palette;
      const std::string image = row.at(2).empty() ? "" : imageIn(cut);
      ASSERT_TRUE(endIsFree || image == row[2] || image.ends_with('.')) << row[0] << " at " << length << ": " << image;
    }
  }
}

TEST(StandardFormats, ReadTextAndRefuseWhatIsWrong) {
  for (const auto& row : readTable("standard_text.txt")) {
    EXPECT_EQ(paletteIn(bytesOf(row.at(1)), row.at(0), show), row.at(2)) << row[1];
  }
}

TEST(StandardFormats, CheckWhatTheFileClaims) {
  std::set<std::string> palettes;
  for (const auto& row : readTable("standard.txt")) {
    if (row.at(2).empty()) {
      palettes.insert(row.at(0));
    }
  }
  for (const auto& row : readTable("standard_mutations.txt")) {
    Bytes content = contentOf(row.at(0));
    std::ranges::copy(row.at(2), content.begin() + std::stoi(row.at(1)));
    EXPECT_EQ(palettes.contains(row[0]) ? paletteIn(content, row[0], withChecksum) : imageIn(content), row.at(3))
        << row[0] << " at " << row[1];
  }
}

TEST(StandardFormats, ComeBackFromTheirWriters) {
  for (const ExportFormat* writer : standardWriters()) {
    for (const std::int32_t size : {1, 256, 1024}) {
      EXPECT_EQ(checkStandardRoundTrip(variedPalette(size), *writer), "") << writer->name << ' ' << size;
    }
  }
}

}  // namespace
}  // namespace quillhue
