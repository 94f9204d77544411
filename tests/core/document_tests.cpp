#include <gtest/gtest.h>

#include "core/document.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

using Lines = std::vector<std::string>;

class PaletteDocumentTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;

  PaletteDocument& replace(Palette palette, bool modified = false, const wchar_t* name = L"",
                           PaletteFormat format = 0) {
    slot.replaceDocument(std::move(palette), modified, name, format, fakes.services);
    return *slot.document();
  }
};

TEST_F(PaletteDocumentTest, ReplacingAnnouncesEverythingInOrder) {
  EXPECT_EQ(slot.document(), nullptr);
  const PaletteDocument& first = replace(createPalette(1));
  EXPECT_EQ(fakes.takeLines(),
            (Lines{"title: Quillhue - Untitled", "status: 1 entry", "undo/redo: no/no", "document replaced"}));
  EXPECT_EQ(first.getFileName(), L"\\Untitled");
  EXPECT_FALSE(first.isModified());

  // The same title again: every document sets it.
  const PaletteDocument& second = replace(createPalette(2), true, L"", 7);
  EXPECT_EQ(fakes.takeLines(),
            (Lines{"title: Quillhue - Untitled", "status: 2 entries", "undo/redo: no/no", "document replaced"}));
  EXPECT_TRUE(second.isModified());
  EXPECT_EQ(second.getFormat(), 7U);

  replace(createPalette(3), false, L"C:\\art\\sea.pal", 10);
  EXPECT_EQ(fakes.takeLines()[0], "title: Quillhue - sea.pal");
}

TEST_F(PaletteDocumentTest, TitleShowsTheNameBehindTheLastBackslash) {
  PaletteDocument& document = replace(createPalette(1));
  fakes.takeLines();
  document.setFileName(L"\\Untitled");
  EXPECT_EQ(fakes.takeLines(), Lines{});
  document.setFileName(L"C:\\a\\b.act");
  document.setFileName(L"C:\\a\\b.act");
  document.setFileName(L"plain/name");
  document.setFileName(L"folder\\");
  EXPECT_EQ(fakes.takeLines(),
            (Lines{"title: Quillhue - b.act", "title: Quillhue - plain/name", "title: Quillhue - "}));
}

TEST_F(PaletteDocumentTest, StatusFollowsTheSize) {
  PaletteDocument& document = replace(createPalette(2));
  fakes.takeLines();
  document.resize(-5);
  document.undo();
  document.redo();
  Lines status;
  for (const std::string& line : fakes.takeLines()) {
    if (line.starts_with("status")) {
      status.push_back(line);
    }
  }
  EXPECT_EQ(status, (Lines{"status: 1 entry", "status: 2 entries", "status: 1 entry"}));
}

TEST_F(PaletteDocumentTest, SettersIgnoreWhatIsOutsideAndWhatIsLocked) {
  const Palette original = variedPalette(3);
  PaletteDocument& document = replace(original);
  const auto tryAll = [&](std::int32_t index) {
    document.setColor(index, {1, 1, 1});
    document.setRed(index, 2);
    document.setGreen(index, 3);
    document.setBlue(index, 4);
  };
  for (const std::int32_t index : {3, -1, std::numeric_limits<std::int32_t>::max()}) {
    tryAll(index);
    document.select(index);
    document.deselect(index);
  }
  EXPECT_EQ(document.getPalette(), original);

  document.select(1);
  document.lock();
  tryAll(1);
  document.applyChannels(7, createPalette(3, {9, 9, 9}));
  EXPECT_EQ(colorsOf(document.getPalette()), colorsOf(original));
  document.unlock();
  tryAll(1);
  EXPECT_EQ(document.getPalette().entry(1), (PaletteEntry{2, 3, 4}));
  EXPECT_EQ(document.countSelected(), 1);
  document.deselect(1);
  EXPECT_EQ(document.countSelected(), 0);
  EXPECT_FALSE(document.isModified());
}

TEST_F(PaletteDocumentTest, ApplyChannelsGoesBySelectedEntry) {
  const Colors source{{10, 11, 12}, {20, 21, 22}, {30, 31, 32}};
  struct Case {
    ChannelMask mask;
    PaletteEntry expected;
  };
  // What entry 5, the third selected one, becomes; it was 6, 200, 35.
  for (const auto& [mask, expected] : {Case{0, {6, 200, 35}}, Case{1, {30, 200, 35}}, Case{2, {6, 31, 35}},
                                       Case{4, {6, 200, 32}}, Case{7, {30, 31, 32}}}) {
    const Palette original = variedPalette(7);
    PaletteDocument& document = replace(original);
    for (const std::int32_t index : {1, 4, 5, 6}) {
      document.select(index);
    }
    document.applyChannels(mask, paletteOf(source));
    EXPECT_EQ(document.getPalette().entry(5), expected) << mask;
    EXPECT_EQ(document.getPalette().entry(3), original.entry(3)) << mask;
    // The source is exhausted.
    EXPECT_EQ(document.getPalette().entry(6), original.entry(6)) << mask;
  }
}

}  // namespace
}  // namespace quillhue
