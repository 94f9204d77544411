#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/utf8.h"
#include "formats/image_colors.h"
#include "formats/readers/palette_readers.h"
#include "support/checksum.h"
#include "support/palettes.h"
#include "support/table.h"

namespace quillhue {
namespace {

Bytes sample(const std::string& file) { return dataFile("samples/" + file); }

std::string readerOf(Bytes content, const std::string& name) {
  MemorySource source(std::move(content));
  const PaletteReader* const reader = findPaletteReader({source, fromUtf8(name)});
  return reader == nullptr ? "none" : std::string(reader->name);
}

// Returns the failure's text, the number of an image's colors, or the palette as `showPalette` shows it.
template <typename ShowPalette>
std::string read(Bytes content, const std::string& name, ShowPalette showPalette) {
  MemorySource source(std::move(content));
  const ReadResult result = readPalette({source, fromUtf8(name)});
  if (!result) {
    return std::string(textOf(result.error()));
  }
  if (const auto* bitmap = std::get_if<TrueColorBitmap>(&*result)) {
    return std::to_string(ImageColors(*bitmap).distinctCount()) + " colors";
  }
  return showPalette(std::get<FilePalette>(*result));
}

std::string withAllEntries(const FilePalette& file) { return show(file.palette); }

// Returns the code, the size and the checksum of the entries.
std::string withChecksum(const FilePalette& file) {
  return std::to_string(file.format) + ' ' + std::to_string(file.palette.getSize()) + ' ' +
         std::to_string(checksumOf(file.palette));
}

TEST(Samples, HoldWhatTheirListTells) {
  std::set<std::string> readers;
  for (const auto& row : readTable("samples.txt")) {
    const std::string& file = row.at(0);
    const std::string& reader = row.at(1);
    EXPECT_EQ(readerOf(sample(file), file), reader) << file;
    EXPECT_EQ(read(sample(file), file, withChecksum), row.at(2)) << file;
    readers.insert(reader);
  }
  EXPECT_EQ(readers.size(), paletteReaders().size());
}

// Returns the colors in the file's order, or none if the file is refused.
std::vector<ColorWord> colorsOf(Bytes content, const std::string& name) {
  std::vector<ColorWord> colors;
  MemorySource source(std::move(content));
  const ReadResult result = readPalette({source, fromUtf8(name)});
  if (result && std::holds_alternative<TrueColorBitmap>(*result)) {
    std::get<TrueColorBitmap>(*result).forEachBlock(
        [&](auto words) { colors.insert(colors.end(), words.begin(), words.end()); });
  } else if (result) {
    for (const PaletteEntry& color : entriesOf(std::get<FilePalette>(*result).palette)) {
      colors.push_back(static_cast<ColorWord>(color.red << 16 | color.green << 8 | color.blue));
    }
  }
  return colors;
}

std::vector<Bytes> cutAtEveryByte(const Bytes& whole) {
  std::vector<Bytes> cuts;
  for (std::size_t length = 4; length < whole.size(); ++length) {
    cuts.emplace_back(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
  }
  return cuts;
}

// A file that ends early reads as if zeros followed. If the size counts, the file gives the first of those colors, as
// many as cut.txt says.
TEST(Samples, CutAtEveryByteReadAsIfZerosFollowed) {
  const auto rules = readTable("cut.txt");
  for (const auto& row : readTable("samples.txt")) {
    const std::string& file = row.at(0);
    const Bytes whole = sample(file);
    for (const Bytes& cut : isText(whole) ? std::vector<Bytes>() : cutAtEveryByte(whole)) {
      std::optional<std::size_t> count;
      for (const auto& rule : rules) {
        const std::size_t from = std::stoul(rule.at(1));
        if (rule.at(0) == file && cut.size() >= from) {
          count = std::stoul(rule.at(2)) + (cut.size() - from) / std::stoul(rule.at(3)) * std::stoul(rule.at(4));
        }
      }
      Bytes padded = cut;
      padded.resize(whole.size() + 1000);
      // The black that MS Draw implies comes first only while the file has none.
      std::vector<ColorWord> expected = colorsOf(row.at(1) == "ms-draw" ? whole : padded, file);
      expected.resize(std::min(expected.size(), count.value_or(expected.size())));
      const std::vector<ColorWord> colors = colorsOf(cut, file);
      ASSERT_EQ(colors, expected) << file << ' ' << cut.size();
      ASSERT_TRUE(count ? colors.size() == *count : read(cut, file, withChecksum) == read(padded, file, withChecksum))
          << file << ' ' << cut.size();
    }
  }
}

// A text that ends early reads as if its last line ended there, or as if the line went on with a zero. The lines before
// give the same colors as in the whole file, unless the file's header has a count: it gives the missing colors too.
TEST(Samples, TextsCutAtEveryByteLoseOnlyTheirLastLine) {
  for (const auto& row : readTable("samples.txt")) {
    const std::string& file = row.at(0);
    const Bytes whole = sample(file);
    const std::vector<ColorWord> all = colorsOf(whole, file);
    for (const Bytes& cut : isText(whole) ? cutAtEveryByte(whole) : std::vector<Bytes>()) {
      const std::vector<ColorWord> colors = colorsOf(cut, file);
      const auto endedBy = [&](char last) {
        Bytes ended = cut;
        ended.push_back(static_cast<std::uint8_t>(last));
        return colorsOf(ended, file);
      };
      // The comment of 258 bytes in lines.gpl ends here without a line feed.
      const bool isLineEnd = cut.back() == '\n' || (file == "lines.gpl" && cut.size() == 360);
      ASSERT_TRUE(isLineEnd || colors == endedBy('\n') || colors == endedBy('\0')) << file << ' ' << cut.size();
      const bool isComplete = colors.empty() || colors.size() == all.size();
      ASSERT_TRUE(isComplete || std::equal(colors.begin(), colors.end() - 1, all.begin())) << file << ' ' << cut.size();
    }
  }
}

TEST(Samples, LoseTheirReaderWithAnyByteOfItsSignature) {
  for (const auto& row : readTable("samples.txt")) {
    for (std::size_t at = 0; at < 4; ++at) {
      Bytes content = sample(row.at(0));
      content[at] ^= 0x80;
      const bool counts = row.at(3).contains(static_cast<char>('0' + at));
      EXPECT_EQ(readerOf(content, row[0]) != row.at(1), counts) << row[0] << " byte " << at;
    }
  }
}

TEST(Readers, AreFoundBySignatureAndName) {
  for (const auto& row : readTable("detection.txt")) {
    EXPECT_EQ(readerOf(bytesOf(row.at(0)), row.at(1)), row.at(2)) << row[0] << " as " << row[1];
  }
}

TEST(Readers, CheckWhatTheFileClaims) {
  for (const auto& row : readTable("mutations.txt")) {
    Bytes content = sample(row.at(0));
    content.resize(row.at(1).empty() ? content.size() : std::stoul(row[1]));
    std::ranges::copy(row.at(3), content.begin() + std::stoi(row.at(2)));
    const std::string result = read(content, row[0], [](const FilePalette& file) {
      const std::string all = show(file.palette);
      return std::to_string(file.palette.getSize()) + " entries to " + all.substr(all.rfind(' ') + 1);
    });
    EXPECT_EQ(result, row.at(4)) << row[0] << " at " << row[2];
  }
}

TEST(Readers, ReadTextByItsRules) {
  for (const auto& row : readTable("text_palettes.txt")) {
    std::string text = row.at(1);
    if (const auto at = text.find('@'); at != std::string::npos) {
      std::size_t digits = 0;
      const auto times = std::stoul(text.substr(at + 1), &digits);
      text.replace(at, 1 + digits, times - 1, text[at - 1]);
    }
    EXPECT_EQ(read(bytesOf(text), row[0], withAllEntries), row.at(2)) << row[1];
  }
  std::string lines;
  for (int i = 0; i < 1030; ++i) {
    lines += "1 2 3\n";
  }
  EXPECT_EQ(read(bytesOf(lines), "x.map", withAllEntries), show(createPalette(1024, {1, 2, 3})));
}

TEST(MsDrawReader, TakesAtMost1024WithTheImpliedBlack) {
  Bytes content(54 + 4 * 1030);
  content[0] = 0x43;
  for (std::size_t i = 0; i < 1030; ++i) {
    content[54 + 4 * i] = static_cast<std::uint8_t>(i);
    content[55 + 4 * i] = static_cast<std::uint8_t>(i / 256 + 1);
  }
  const std::string all = read(content, "x", withAllEntries);
  EXPECT_EQ(std::ranges::count(all, ' '), 1023);
  EXPECT_TRUE(all.starts_with("0,0,0 0,1,0 1,1,0 ") && all.ends_with(" 253,4,0 254,4,0"));
}

}  // namespace
}  // namespace quillhue
