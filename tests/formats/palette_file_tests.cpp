#include <gtest/gtest.h>

#include "formats/files.h"
#include "formats/palette_file.h"
#include "support/bitmaps.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

using Lines = std::vector<std::string>;
using namespace palette_format;

class PaletteFileTest : public testing::Test {
 protected:
  [[nodiscard]] std::wstring inFolder(const std::string& name) const { return toFileName(folder.path() / name); }
  std::wstring file(const std::string& name, const Bytes& content) {
    EXPECT_TRUE(writeFile(inFolder(name), content));
    return inFolder(name);
  }
  Bytes contentOf(const std::wstring& name) {
    const auto source = openFile(name).value();
    return source->bytes(0, static_cast<std::size_t>(source->size()));
  }
  PaletteDocument& open(const std::wstring& name) {
    readPaletteFile(name, slot, fakes.services);
    fakes.takeLines();
    return *slot.document();
  }

  ScratchFolder folder;
  RecordingServices fakes;
  DocumentSlot slot;
};

TEST_F(PaletteFileTest, OpensAPaletteUnderItsNameAndFormat) {
  const std::wstring name = file("two.csv", bytesOf("1,2,3\n4,5,6\n"));
  readPaletteFile(name, slot, fakes.services);
  EXPECT_EQ(fakes.takeLines()[1], "status: 2 entries");
  EXPECT_EQ(slot.document()->getFileName(), name);
  EXPECT_EQ(slot.document()->getFormat(), kCsv | kMayHoldMore);
  EXPECT_FALSE(slot.document()->isModified());
  EXPECT_EQ(colorsOf(slot.document()->getPalette()), (Colors{{1, 2, 3}, {4, 5, 6}}));
}

TEST_F(PaletteFileTest, KeepsTheDocumentWhenAFileIsRefused) {
  const PaletteDocument* const document = &open(file("ok.map", bytesOf("1 2 3")));
  struct Case {
    std::wstring name;
    const char* line;
  };
  for (const auto& [name, line] : {Case{inFolder("none.pal"), "error: Could not open the file."},
                                   Case{file("x.txt", {}), "error: Quillhue could not recognise this file type."},
                                   Case{file("x.act", {}), "error: This Adobe Color Table file is too small."},
                                   Case{toFileName(folder.path()), "error: Could not open the file."}}) {
    readPaletteFile(name, slot, fakes.services);
    EXPECT_EQ(fakes.takeLines(), Lines{line});
    EXPECT_EQ(slot.document(), document);
  }
}

TEST_F(PaletteFileTest, MakesAPaletteFromAnImageAsTheUserAnswers) {
  const std::wstring name = file("sea.bmp", bitmapOf(4, 24, {0x30, 0x10, 0x20, 0x20}));
  fakes.settings.blank = {7, 7, 7};
  readPaletteFile(name, slot, fakes.services);
  EXPECT_EQ(fakes.takeLines(), Lines{"from image? 3"});
  EXPECT_EQ(slot.document(), nullptr);

  struct Case {
    std::int32_t answer;
    Colors expected;
  };
  for (const auto& [answer, expected] :
       {Case{2, {{0, 0, 0x10}, {0, 0, 0x20}}}, Case{4, {{0, 0, 0x10}, {0, 0, 0x20}, {0, 0, 0x30}, {7, 7, 7}}},
        Case{-1, {{0, 0, 0x20}}}}) {
    fakes.paletteFromImage = answer;
    const PaletteDocument& document = open(name);
    EXPECT_EQ(colorsOf(document.getPalette()), expected) << answer;
    EXPECT_EQ(document.getFileName(), L"\\Untitled");
    EXPECT_EQ(document.getFormat(), kNone);
    EXPECT_TRUE(document.isModified());
  }
}

TEST_F(PaletteFileTest, SavesBackAndCountsFromThere) {
  const std::wstring name = file("a.map", bytesOf("1 2 3\n"));
  PaletteDocument& document = open(name);
  document.recordColor(0);
  document.setRed(0, 99);
  fakes.takeLines();
  EXPECT_TRUE(save(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), Lines{});
  EXPECT_FALSE(document.isModified());
  EXPECT_EQ(contentOf(name), bytesOf("99 2 3\r\n"));
}

TEST_F(PaletteFileTest, LeavesDocumentAndFileAloneWhenSavingIsRefused) {
  const std::wstring name = file("a.csv", bytesOf("1,2,3\n"));
  PaletteDocument& document = open(name);
  document.resize(300);
  fakes.takeLines();
  EXPECT_FALSE(save(document, fakes.services));
  EXPECT_FALSE(writePaletteFile(document, name, kJasc, fakes.services));
  EXPECT_FALSE(writePaletteFile(document, inFolder("none/a.gpl"), kGimp, fakes.services));
  EXPECT_EQ(fakes.takeLines(),
            (Lines{"error: This file might contain additional information which would be removed.\nChoose \"Save "
                   "as...\" to overwrite or to select a different file.",
                   "error: The palette is too large for the selected format.\nUse the Gimp, RIFF, or Windows Clipboard "
                   "format instead.",
                   "error: Could not create the file."}));
  EXPECT_EQ(contentOf(name), bytesOf("1,2,3\n"));
  EXPECT_EQ(document.modificationCount(), 1);
  EXPECT_EQ(document.getFormat(), kCsv | kMayHoldMore);
  EXPECT_EQ(document.getFileName(), name);
  // No dialog offers such a format.
  document.resize(256);
  EXPECT_FALSE(writePaletteFile(document, inFolder("empty"), 12, fakes.services));
  EXPECT_EQ(contentOf(inFolder("empty")), Bytes{});
  EXPECT_EQ(document.getFileName(), name);
}

TEST_F(PaletteFileTest, SaveAsAppendsExtensionsAndAsksBeforeReplacing) {
  slot.replaceDocument(createPalette(1), true, L"", kNone, fakes.services);
  PaletteDocument& document = *slot.document();
  fakes.takeLines();
  EXPECT_FALSE(save(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), Lines{"save as? 10"});

  fakes.saveAs = SaveAsAnswer{inFolder("colors"), kMap};
  EXPECT_TRUE(save(document, fakes.services));
  const Lines lines = fakes.takeLines();
  EXPECT_EQ(lines.front(), "save as? 10");
  EXPECT_TRUE(lines.back().starts_with("title: ") && lines.back().ends_with("colors.map")) << lines.back();
  EXPECT_EQ(contentOf(inFolder("colors.map")), bytesOf("0 0 0\r\n"));
  EXPECT_EQ(document.getFormat(), kMap);

  document.setColor(0, {1, 1, 1});
  EXPECT_FALSE(saveAs(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), (Lines{"save as? 8", "replace? This file already exists.\nDo you want to replace it?"}));
  EXPECT_EQ(contentOf(inFolder("colors.map")), bytesOf("0 0 0\r\n"));
  fakes.replaceFile = true;
  EXPECT_TRUE(saveAs(document, fakes.services));
  EXPECT_EQ(contentOf(inFolder("colors.map")), bytesOf("1 1 1\r\n"));

  fakes.saveAs = SaveAsAnswer{inFolder("sea"), kGimp};
  EXPECT_TRUE(saveAs(document, fakes.services));
  EXPECT_TRUE(fileExists(inFolder("sea")));
}

TEST_F(PaletteFileTest, ExtensionsAreAppendedWhereNoneOfThreeLettersIs) {
  struct Case {
    const wchar_t* name;
    const wchar_t* expected;
  };
  for (const auto& [name, expected] :
       {Case{L"colors", L"colors.pal"}, Case{L"colors.txt", L"colors.txt"}, Case{L"a.bc", L"a.bc.pal"},
        Case{L".abc", L".abc.pal"}, Case{L"x.abc", L"x.abc"}, Case{L"x.jpeg", L"x.jpeg.pal"}}) {
    EXPECT_EQ(withExtension(name, "pal"), expected);
  }
}

TEST_F(PaletteFileTest, AsksBeforeAModifiedDocumentIsDiscarded) {
  PaletteDocument& document = open(file("a.map", bytesOf("1 2 3\n")));
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), Lines{});

  document.recordColors();
  fakes.takeLines();
  EXPECT_FALSE(askToSave(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), Lines{"save? Do you want to save the current palette?"});
  fakes.saveChanges = SaveChangesAnswer::no;
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_TRUE(document.isModified());
  fakes.saveChanges = SaveChangesAnswer::yes;
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_FALSE(document.isModified());

  // Yes, and then Cancel in Save As.
  slot.replaceDocument(createPalette(1), true, L"", kNone, fakes.services);
  EXPECT_FALSE(askToSave(*slot.document(), fakes.services));
}

}  // namespace
}  // namespace quillhue
