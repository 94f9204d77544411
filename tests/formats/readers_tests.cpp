#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "formats/image_colors.h"
#include "formats/readers/palette_readers.h"
#include "support/samples.h"

namespace quillhue {
namespace {

// CRC-32 of ISO 3309, as zlib computes it.
std::uint32_t crc32(const Palette& palette) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const PaletteEntry color : colorsOf(palette)) {
    for (const std::uint8_t byte : {color.red, color.green, color.blue}) {
      crc ^= byte;
      for (int bit = 0; bit < 8; ++bit) {
        crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
      }
    }
  }
  return ~crc;
}

// What a file turns out to be, in the words of samples.txt, or the text of its failure.
std::string describe(Bytes content, const std::wstring& name) {
  MemorySource source(std::move(content));
  const ReadResult result = readPalette({source, name});
  if (!result) {
    return std::string(textOf(result.error()));
  }
  if (const auto* bitmap = std::get_if<TrueColorBitmap>(&*result)) {
    return "colors " + std::to_string(ImageColors(*bitmap).distinctCount());
  }
  const auto& [palette, format] = std::get<FilePalette>(*result);
  char crc[9];
  std::snprintf(crc, sizeof crc, "%08x", crc32(palette));
  return std::to_string(format) + ' ' + std::to_string(palette.getSize()) + ' ' + crc;
}

std::string readerOf(Bytes content, const std::wstring& name) {
  MemorySource source(std::move(content));
  const PaletteReader* const reader = findPaletteReader({source, name});
  return reader == nullptr ? "none" : std::string(reader->name);
}

TEST(Samples, HoldWhatTheirListTells) {
  std::set<std::string> readers;
  for (const Sample& sample : allSamples()) {
    EXPECT_EQ(readerOf(sample.content(), sample.name()), sample.reader) << sample.file;
    EXPECT_EQ(describe(sample.content(), sample.name()), sample.holds) << sample.file;
    readers.insert(sample.reader);
  }
  for (const PaletteReader* reader : paletteReaders()) {
    EXPECT_TRUE(readers.contains(std::string(reader->name))) << reader->name << " has no sample";
  }
}

// A file that ends early is the file with zeros behind its end, except where the size itself tells something.
TEST(Samples, CutAtEveryByteReadAsIfZerosFollowed) {
  const std::set<std::string> sizeMatters{"color-table", "pcx", "aa-palette", "act",  "raw", "ms-draw",
                                          "map",         "csv", "gimp",       "jasc", "png", "lbm"};
  for (const Sample& sample : allSamples()) {
    const Bytes whole = sample.content();
    for (std::size_t length = 0; length < whole.size(); ++length) {
      Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      const std::string described = describe(cut, sample.name());
      if (!sizeMatters.contains(sample.reader) && !sample.holds.starts_with("colors") && length >= 4) {
        cut.resize(whole.size());
        ASSERT_EQ(described, describe(cut, sample.name())) << sample.file << " cut to " << length;
      }
    }
  }
}

// Every byte of a signature counts, and no more than the signature.
TEST(Samples, LoseTheirReaderWithAnyByteOfTheirSignature) {
  struct Signature {
    const char* reader;
    std::vector<std::size_t> bytes;
  };
  const std::vector<Signature> signatures{{"jasc", {0, 1, 2, 3}},
                                          {"gimp", {0, 1, 2, 3}},
                                          {"xcf", {0, 1, 2, 3}},
                                          {"riff", {0, 1, 2, 3}},
                                          {"cmp", {0, 1, 2, 3}},
                                          {"color-table", {0, 1, 2, 3}},
                                          {"bmp", {0, 1}},
                                          {"gif", {0, 1, 2, 3}},
                                          {"clp", {0, 1}},
                                          {"png", {0, 1, 2, 3}},
                                          {"ms-draw", {0, 2, 3}},
                                          {"lbm", {0, 1, 2, 3}},
                                          {"dr-halo", {0, 1, 2, 3}},
                                          {"pcx", {0, 1, 2}},
                                          {"tiff", {0, 1, 2, 3}},
                                          {"aa-animation", {0, 1, 2, 3}},
                                          {"aa-palette", {0, 1, 2, 3}}};
  for (const auto& [reader, bytes] : signatures) {
    for (const Sample& sample : allSamples()) {
      if (sample.reader != reader) {
        continue;
      }
      for (std::size_t at = 0; at < 4; ++at) {
        Bytes content = sample.content();
        content[at] ^= 0x80;
        const bool counts = std::ranges::find(bytes, at) != bytes.end();
        EXPECT_EQ(readerOf(content, L"x") == reader, !counts) << sample.file << " byte " << at;
      }
    }
  }
}

TEST(Readers, DetectTheFormat) {
  struct Case {
    const char* content;
    std::size_t length;
    const wchar_t* name;
    const char* reader;
  };
  const Case cases[] = {
      // Signatures come before extensions, and those before nothing.
      {"JASC", 4, L"x.act", "jasc"},
      {"jasc", 4, L"x.pal", "raw"},
      {"GIMP", 4, L"x", "gimp"},
      {"gimp", 4, L"x", "xcf"},
      {"GIF9", 4, L"x", "none"},
      {"\x50\xC4", 2, L"x", "none"},
      {"\x89PNg", 4, L"x.col", "raw"},
      {"LPF", 3, L"x", "none"},
      {"\x0A\x03\x01", 3, L"x", "none"},
      {"\x0A\x05\x02", 3, L"x", "none"},
      {"MM\0*", 4, L"x", "tiff"},
      {"MM*\0", 4, L"x", "none"},
      {"II\0*", 4, L"x", "none"},
      {"AH\xE3\1", 4, L"x", "none"},
      {"C\1\0\1", 4, L"x", "none"},
      // What lies past the end is zero.
      {"C", 1, L"x", "ms-draw"},
      {"AH\xE3", 3, L"x", "dr-halo"},
      {"BM", 2, L"x", "bmp"},
      {"\0\3\0", 3, L"x", "none"},
      // The size in the file: above 8, and equal.
      {"\x09\0\0\0\0\0\0\0\0", 9, L"x", "aa-palette"},
      {"\x08\0\0\0\0\0\0\0", 8, L"x", "none"},
      {"\x0A\0\0\0\0\0\0\0\0", 9, L"x", "none"},
      // Three letters in any case, with no dot needed, and only at the end.
      {"", 0, L"MAP", "map"},
      {"", 0, L"bitmap", "map"},
      {"", 0, L"AP", "none"},
      {"", 0, L"x.cSv", "csv"},
      {"", 0, L"x.csv.txt", "none"},
      {"", 0, L"x.\u017Fcsv", "csv"},
      {"", 0, L"x.c\u017Fv", "none"},
      {"", 0, L"x.tga", "tga"},
      {"\1", 1, L"x.tga", "none"},
      {"", 0, L"x.act", "act"},
      {"", 0, L"x.pal", "raw"},
      {"", 0, L"x.col", "raw"},
      {"", 0, L"", "none"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(readerOf(bytesOf({row.content, row.length}), row.name), row.reader)
        << testing::PrintToString(bytesOf({row.content, row.length})) << " as " << testing::PrintToString(row.name);
  }
}

// A sample with some bytes replaced, or cut or lengthened to a size, and what becomes of it.
TEST(Readers, RefuseWhatTheyCannotRead) {
  struct Case {
    const char* sample;
    std::size_t offset;
    Bytes bytes;
    const char* expected;
    std::size_t size = 0;
  };
  const auto text = [](Failure failure) { return textOf(failure).data(); };
  using enum Failure;
  const Case cases[] = {
      {"jasc-crlf.pal", 16, bytesOf("00"), text(jascInvalid)},
      {"jasc-crlf.pal", 16, bytesOf("1025\r"), text(jascInvalid)},
      {"jasc-crlf.pal", 16, bytesOf("x2"), text(jascInvalid)},
      {"jasc-crlf.pal", 0, {}, text(jascInvalid), 9},
      {"jasc-crlf.pal", 10, bytesOf("9999"), text(jascInvalid), 16},
      {"indexed.xcf", 25, {1}, text(xcfNotIndexed)},
      {"indexed.xcf", 29, {17}, text(xcfNoColorMap)},
      {"indexed.xcf", 36, {0, 0}, text(xcfInvalidCount)},
      {"indexed.xcf", 36, {4, 1}, text(xcfInvalidCount)},
      {"counts-8.pal", 16, {11, 0}, text(riffTooLarge)},
      {"counts-8.pal", 16, {0, 0}, text(riffTooLarge)},
      {"counts-8.pal", 16, {12, 16}, text(riffTooLarge)},
      {"32.cmp", 12, {11}, text(cmpTooLarge)},
      {"4-bit.bmp", 28, {9}, text(bitmapUnsupported)},
      {"4-bit.bmp", 28, {48}, text(bitmapUnsupported)},
      {"24-bit.bmp", 18, {0, 0, 0, 0}, text(imageTooSmall)},
      {"24-bit.bmp", 18, {0, 0, 0, 0x80}, text(imageTooSmall)},
      {"24-bit.bmp", 22, {0, 0, 0, 0}, text(imageTooSmall)},
      {"24-bit.bmp", 22, {0, 0, 0, 0x80}, text(imageTooLarge)},
      {"24-bit.bmp", 18, {1, 0, 4, 0}, text(imageTooLarge)},
      {"24-bit.bmp", 18, {0, 0, 4, 0, 0, 4, 0, 0}, "colors 114"},
      {"24-bit.bmp", 18, {0, 0, 4, 0, 1, 4, 0, 0}, text(imageTooLarge)},
      {"24-bit.bmp", 0, {}, text(imageTooSmall), 54},
      {"24-bit.bmp", 0, {}, "colors 2", 55},
      {"32.gif", 10, {0x7F}, text(gifNoGlobalPalette)},
      {"palette.clp", 2, {0, 0}, text(clipboardNoPalette)},
      {"palette.clp", 2, {1, 0}, "0 16 e04bd69a"},
      {"bitmap.clp", 4, {9, 0}, text(clipboardNoPalette)},
      {"chunk.png", 25, {2}, text(pngNotIndexed)},
      {"chunk.png", 53, bytesOf("PLTe"), text(pngNoPaletteChunk)},
      {"chunk.png", 0, {}, text(pngNoPaletteChunk), 56},
      {"chunk.png", 49, {0, 0, 0, 2}, text(pngPaletteTooSmall)},
      {"cmap.lbm", 12, bytesOf("cmap"), text(lbmPaletteTooLarge)},
      {"cmap.lbm", 16, {0, 0, 0, 2}, text(lbmPaletteTooLarge)},
      {"cmap.lbm", 16, {0, 0, 12, 3}, text(lbmPaletteTooLarge)},
      {"cmap.lbm", 16, {0xFF, 0xFF, 0xFF, 0xFF}, text(lbmPaletteTooLarge)},
      {"trailer.pcx", 128, {13}, text(pcxUnrecognised)},
      {"trailer.pcx", 0, {}, text(pcxUnrecognised), 768},
      {"little.tif", 18, {11, 0}, text(tiffCorrupt)},
      {"little.tif", 30, {2, 0}, text(tiffCorrupt)},
      {"big.tif", 34, {1, 65}, text(tiffCorrupt)},
      {"big.tif", 4, {0xFF, 0xFF, 0xFF, 0xFF}, text(tiffCorrupt)},
      {"sized.aap", 0, {70}, text(aaProInvalid), 70},
      {"sized.aap", 0, {11, 12}, text(aaProTooLarge), 3083},
      {"mapped.tga", 1, {0}, text(tgaNot8Bit)},
      {"full.act", 0, {}, text(actTooSmall), 767},
      {"raw.pal", 0, {}, text(rawPalTooSmall), 2},
      {"raw.pal", 0, {}, text(rawPalTooLarge), 3073},
      {"raw.col", 0, {}, text(rawColTooSmall), 2},
      {"raw.col", 0, {}, text(rawColTooLarge), 3073},
  };
  const auto samples = allSamples();
  for (const Case& row : cases) {
    const auto sample = std::ranges::find(samples, row.sample, &Sample::file);
    ASSERT_NE(sample, samples.end()) << row.sample;
    Bytes content = sample->content();
    content.resize(row.size == 0 ? content.size() : row.size);
    std::ranges::copy(row.bytes, content.begin() + static_cast<std::ptrdiff_t>(row.offset));
    EXPECT_EQ(describe(content, sample->name()), row.expected) << row.sample << " at " << row.offset;
  }
  EXPECT_EQ(describe({}, L"x"), text(unrecognisedType));
}

// The size and the last entry that files of certain sizes or counts give.
TEST(Readers, SizeThePalette) {
  struct Case {
    const char* sample;
    std::size_t offset;
    Bytes bytes;
    std::size_t size;
    std::int32_t expectedSize;
    PaletteEntry last;
  };
  const Case cases[] = {
      {"small-table.pal", 0, {}, 700, 16, {54, 39, 139}},
      {"small-table.pal", 0, {}, 701, 256, {}},
      {"32.cmp", 12, {0}, 110, 1, {11, 60, 200}},
      {"32.cmp", 12, {10}, 110, 1024, {}},
      {"4-bit.bmp", 28, {0}, 126, 1, {11, 60, 200}},
      {"4-bit.bmp", 28, {1}, 126, 2, {48, 161, 213}},
      {"counted.act", 768, {0, 0}, 772, 1, {11, 60, 200}},
      {"counted.act", 768, {0x13, 0x88}, 772, 1024, {}},
      {"counted.act", 768, {0, 5}, 773, 256, {}},
      {"chunk.png", 49, {0, 0, 0, 3}, 129, 1, {11, 60, 200}},
      {"chunk.png", 49, {0, 0, 12, 3}, 129, 1024, {}},
      {"chunk.png", 49, {0x80, 0, 0, 0}, 129, 1024, {}},
      {"cmap.lbm", 16, {0, 0, 12, 2}, 80, 1024, {}},
      {"no-black.pal", 0, {}, 57, 1, {}},
      {"no-black.pal", 0, {}, 58, 2, {11, 60, 200}},
      // The record of black makes the implied one unnecessary.
      {"no-black.pal", 54, {0, 0, 0, 9}, 63, 2, {11, 60, 200}},
      {"little.tif", 18, {10, 0}, 150, 1024, {}},
  };
  const auto samples = allSamples();
  for (const Case& row : cases) {
    const auto sample = std::ranges::find(samples, row.sample, &Sample::file);
    ASSERT_NE(sample, samples.end()) << row.sample;
    Bytes content = sample->content();
    content.resize(row.size);
    std::ranges::copy(row.bytes, content.begin() + static_cast<std::ptrdiff_t>(row.offset));
    MemorySource source(std::move(content));
    const std::wstring name = sample->name();
    const ReadResult result = readPalette({source, name});
    ASSERT_TRUE(result) << row.sample << ": " << textOf(result.error());
    const Palette& palette = std::get<FilePalette>(*result).palette;
    EXPECT_EQ(palette.getSize(), row.expectedSize) << row.sample << " at " << row.offset;
    EXPECT_EQ(colorsOf(palette).back(), row.last) << row.sample << " at " << row.offset;
  }
}

TEST(MsDrawReader, TakesAtMost1024WithTheImpliedBlack) {
  Bytes content(54 + 4 * 1030);
  content[0] = 0x43;
  for (std::size_t i = 0; i < 1030; ++i) {
    content[54 + 4 * i] = static_cast<std::uint8_t>(i);
    content[55 + 4 * i] = static_cast<std::uint8_t>(i / 256 + 1);
  }
  MemorySource source(content);
  const ReadResult result = readPalette({source, L"x"});
  const Colors colors = colorsOf(std::get<FilePalette>(*result).palette);
  ASSERT_EQ(colors.size(), 1024U);
  EXPECT_EQ(colors.front(), PaletteEntry{});
  EXPECT_EQ(colors.back(), (PaletteEntry{0xFE, 4, 0}));
}

}  // namespace
}  // namespace quillhue
