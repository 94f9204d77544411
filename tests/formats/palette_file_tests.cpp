#include <gtest/gtest.h>

#include "formats/palette_file.h"
#include "formats/writers/palette_writers.h"
#include "support/bitmaps.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

using namespace palette_format;

class PaletteFileTest : public testing::Test {
 protected:
  PaletteDocument& open(const std::wstring& name) {
    readPaletteFile(name, slot, fakes.services);
    fakes.takeLines();
    return *slot.document();
  }

  ScratchFolder folder;
  RecordingServices fakes;
  DocumentSlot slot;
};

TEST_F(PaletteFileTest, OpensAPaletteOrKeepsTheDocument) {
  const std::wstring name = folder.file("two.csv", bytesOf("1,2,3\n4,5,6\n"));
  const PaletteDocument& document = open(name);
  EXPECT_EQ(document.getFileName(), name);
  EXPECT_EQ(document.getFormat(), kCsv | kMayHoldMore);
  EXPECT_FALSE(document.isModified());
  EXPECT_EQ(show(document.getPalette()), "1,2,3 4,5,6");
  struct Case {
    std::wstring name;
    const char* lines;
  };
  for (const auto& [refused, lines] :
       {Case{folder.name("none.pal"), "error: Could not open the file.\n"},
        Case{folder.name(), "error: Could not open the file.\n"},
        Case{folder.file("x.txt", {}), "error: Quillhue could not recognise this file type.\n"},
        Case{folder.file("x.act", {}), "error: This Adobe Color Table file is too small.\n"}}) {
    readPaletteFile(refused, slot, fakes.services);
    EXPECT_EQ(fakes.takeLines(), lines);
    EXPECT_EQ(slot.document(), &document);
  }
}

TEST_F(PaletteFileTest, MakesAPaletteFromAnImageAsTheUserAnswers) {
  const std::wstring name = folder.file("sea.bmp", bitmapOf(4, 24, {48, 16, 32, 32}));
  fakes.settings.blank = {7, 7, 7};
  readPaletteFile(name, slot, fakes.services);
  EXPECT_EQ(fakes.takeLines(), "from image? 3\n");
  EXPECT_EQ(slot.document(), nullptr);
  for (const auto& [answer, expected] :
       {std::pair{2, "0,0,16 0,0,32"}, {4, "0,0,16 0,0,32 0,0,48 7,7,7"}, {-1, "0,0,32"}}) {
    fakes.paletteFromImage = answer;
    const PaletteDocument& document = open(name);
    EXPECT_EQ(show(document.getPalette()), expected);
    EXPECT_EQ(document.getFileName(), L"\\Untitled");
    EXPECT_EQ(document.getFormat(), kNone);
    EXPECT_TRUE(document.isModified());
  }
}

TEST_F(PaletteFileTest, LeavesDocumentAndFileAloneWhenSavingIsRefused) {
  const std::wstring name = folder.file("a.csv", bytesOf("1,2,3\n"));
  PaletteDocument& document = open(name);
  document.resize(300);
  fakes.takeLines();
  EXPECT_FALSE(saveAs(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), "save as? 4\n");
  EXPECT_FALSE(save(document, fakes.services));
  EXPECT_FALSE(writePaletteFile(document, name, kJasc, fakes.services));
  EXPECT_FALSE(writePaletteFile(document, folder.name("none/a.gpl"), kGimp, fakes.services));
  EXPECT_EQ(fakes.takeLines(),
            "error: This file might contain additional information which would be removed.\n"
            "Choose \"Save as...\" to overwrite or to select a different file.\n"
            "error: The palette is too large for the selected format.\n"
            "Use the Gimp, RIFF, or Windows Clipboard format instead.\n"
            "error: Could not create the file.\n");
  // No dialog offers this format. Its file stays empty.
  document.resize(256);
  EXPECT_FALSE(writePaletteFile(document, folder.name("empty"), PaletteFormat{15}, fakes.services));
  EXPECT_EQ(folder.contentOf("empty"), "");
  EXPECT_EQ(folder.contentOf("a.csv"), "1,2,3\n");
  EXPECT_EQ(document.modificationCount(), 2);
  EXPECT_EQ(document.getFormat(), kCsv | kMayHoldMore);
  EXPECT_EQ(document.getFileName(), name);
}

TEST_F(PaletteFileTest, SaveAsAppendsExtensionsAndAsksBeforeReplacing) {
  slot.replaceDocument({.palette = createPalette(1), .isModified = true}, fakes.services);
  PaletteDocument& document = *slot.document();
  fakes.takeLines();
  EXPECT_FALSE(save(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), "save as? 10\n");
  fakes.saveAs = SaveAsAnswer{folder.name("colors"), kMap};
  EXPECT_TRUE(save(document, fakes.services));
  EXPECT_EQ(folder.contentOf("colors.map"), "0 0 0\r\n");
  EXPECT_EQ(document.getFileName(), folder.name("colors.map"));
  EXPECT_FALSE(document.isModified());
  fakes.takeLines();

  document.setColor(0, {1, 1, 1});
  EXPECT_FALSE(saveAs(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), "save as? 8\nreplace? This file already exists.\nDo you want to replace it?\n");
  EXPECT_EQ(folder.contentOf("colors.map"), "0 0 0\r\n");
  fakes.replaceFile = true;
  EXPECT_TRUE(saveAs(document, fakes.services));
  EXPECT_EQ(folder.contentOf("colors.map"), "1 1 1\r\n");
  fakes.settings.blank = {65, 66, 67};
  for (const PaletteWriter* writer : paletteWriters()) {
    std::string file(writer->name);
    fakes.saveAs = SaveAsAnswer{folder.name(file), writer->format};
    EXPECT_TRUE(saveAs(document, fakes.services));
    if (writer->format != kGimp) {
      file.append(".").append(writer->extension);
    }
    EXPECT_TRUE(fileExists(folder.name(file))) << file;
  }
  EXPECT_EQ(folder.contentOf("act.act").substr(3, 6), "ABCABC");

  for (const auto& [typed, expected] : {std::pair{L"colors", L"colors.pal"},
                                        {L"colors.txt", L"colors.txt"},
                                        {L".abc", L".abc.pal"},
                                        {L"x.abc", L"x.abc"},
                                        {L"a.bc", L"a.bc.pal"},
                                        {L"x.jpeg", L"x.jpeg.pal"}}) {
    EXPECT_EQ(withExtension(typed, "pal"), expected);
  }
}

TEST_F(PaletteFileTest, AsksBeforeAModifiedDocumentIsDiscarded) {
  PaletteDocument& document = open(folder.file("a.map", bytesOf("1 2 3\n")));
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), "");
  document.recordColor(0);
  document.setRed(0, 99);
  fakes.takeLines();
  EXPECT_FALSE(askToSave(document, fakes.services));
  EXPECT_EQ(fakes.takeLines(), "save? Do you want to save the current palette?\n");
  fakes.saveChanges = SaveChangesAnswer::no;
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_TRUE(document.isModified());
  fakes.saveChanges = SaveChangesAnswer::yes;
  EXPECT_TRUE(askToSave(document, fakes.services));
  EXPECT_FALSE(document.isModified());
  EXPECT_EQ(folder.contentOf("a.map"), "99 2 3\r\n");
  // Yes, and then Cancel in Save As.
  slot.replaceDocument({.palette = createPalette(1), .isModified = true}, fakes.services);
  EXPECT_FALSE(askToSave(*slot.document(), fakes.services));
}

}  // namespace
}  // namespace quillhue
