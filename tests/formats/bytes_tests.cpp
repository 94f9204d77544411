#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "formats/files.h"
#include "formats/readers/palette_readers.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

// Longer than a block, so that values straddle the border.
Bytes twoBlocks() {
  Bytes bytes(16'398);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::uint8_t>(i % 251 + 1);
  }
  return bytes;
}

void expectReads(ByteSource& source, const Bytes& content) {
  EXPECT_EQ(source.size(), content.size());
  for (const std::uint64_t i :
       {0ULL, 16381ULL, 16383ULL, 16394ULL, 16396ULL, 16397ULL, 16398ULL, 32766ULL, 1ULL << 33}) {
    Bytes expected(4);
    for (std::size_t k = 0; k < expected.size() && i + k < content.size(); ++k) {
      expected[k] = content[static_cast<std::size_t>(i) + k];
    }
    const auto at = [&](std::size_t k) { return std::uint32_t{expected[k]}; };
    EXPECT_EQ(source.bytes(i, 4), expected) << i;
    EXPECT_EQ(source.u16le(i), at(0) | at(1) << 8) << i;
    EXPECT_EQ(source.u16be(i), at(0) << 8 | at(1)) << i;
    EXPECT_EQ(source.u32le(i), at(0) | at(1) << 8 | at(2) << 16 | at(3) << 24) << i;
    EXPECT_EQ(source.u32be(i), at(0) << 24 | at(1) << 16 | at(2) << 8 | at(3)) << i;
  }
  EXPECT_FALSE(source.failed());
}

TEST(ByteSource, ReadsMemoryAndFilesAndStreamsAlike) {
  const Bytes content = twoBlocks();
  MemorySource memory(content);
  expectReads(memory, content);
  const ScratchFolder folder;
  expectReads(*openFile(folder.file(toPath(L"m\u00FCll \u20AC.bin"), content)).value(), content);
  std::istringstream stream(std::string(content.begin(), content.end()));
  expectReads(*readStream(stream).value(), content);
}

TEST(ByteSource, FindsTags) {
  Bytes content = twoBlocks();
  std::ranges::copy(bytesOf("PLTE"), content.begin() + 16382);
  std::ranges::copy(bytesOf("PLT"), content.end() - 3);
  MemorySource source(content);
  EXPECT_EQ(findTag(source, 0, "PLTE"), 16382U);
  EXPECT_EQ(findTag(source, 16382, "PLTE"), 16382U);
  EXPECT_EQ(findTag(source, 16383, "PLTE"), content.size());
  EXPECT_EQ(findTag(source, 99999, "PLTE"), content.size());
}

// Returns bytes of 1, but ends before its announced size.
class HalfSource : public ByteSource {
 public:
  HalfSource() : ByteSource(80'000) {}
  int reads = 0;

 private:
  std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) override {
    ++reads;
    const std::size_t got = offset < 40'000 ? std::min<std::size_t>(out.size(), 40'000 - offset) : 0;
    std::ranges::fill(out.first(got), std::uint8_t{1});
    return got;
  }
};

TEST(ByteSource, ReadsBlocksAndTellsWhenTheMediumFails) {
  HalfSource source;
  for (std::uint64_t offset = 0; offset < 32'000; offset += 14) {
    EXPECT_EQ(source.bytes(offset, 14), Bytes(14, 1));
    EXPECT_EQ(source.u32le(offset), 0x01010101U);
  }
  EXPECT_LE(source.reads, 10);
  EXPECT_FALSE(source.failed());
  EXPECT_EQ(source.bytes(39'999, 3), (Bytes{1, 0, 0}));
  EXPECT_TRUE(source.failed());
  EXPECT_EQ(readPalette({source, L"x.act"}).error(), Failure::couldNotOpen);
}

}  // namespace
}  // namespace quillhue
