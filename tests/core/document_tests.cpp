#include <gtest/gtest.h>

#include <limits>

#include "core/document.h"
#include "core/utf8.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(Palette, ResizedCopyKeepsColorsAndSelectionAndFillsWithTheBlankColor) {
  Palette palette = createPalette(kLeast, {1, 2, 3});
  palette.selected()[0] = 1;
  const Palette grown = resizedCopy(palette, 3, {7, 8, 9});
  EXPECT_EQ(show(grown), "1,2,3 7,8,9 7,8,9");
  EXPECT_EQ(Bytes(grown.selected().begin(), grown.selected().end()), (Bytes{1, 0, 0}));
  EXPECT_EQ(resizedCopy(grown, 0, {}), palette);
  EXPECT_EQ(resizedCopy(grown, kLeast, {}), palette);
}

class PaletteDocumentTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;

  PaletteDocument& replace(Palette palette, bool modified = false, const wchar_t* name = L"") {
    slot.replaceDocument({.palette = std::move(palette), .isModified = modified, .fileName = name}, fakes.services);
    return *slot.document();
  }
};

TEST_F(PaletteDocumentTest, ReplacingAnnouncesEverythingInOrder) {
  EXPECT_EQ(slot.document(), nullptr);
  EXPECT_FALSE(replace(createPalette(1)).isModified());
  EXPECT_EQ(fakes.takeLines(), "title: Quillhue - Untitled\nstatus: 1 entry\nundo/redo: no/no\ndocument replaced\n");
  EXPECT_EQ(slot.document()->getFileName(), L"\\Untitled");
  // The title is the same, but every document announces it.
  EXPECT_TRUE(replace(createPalette(2), true).isModified());
  EXPECT_EQ(fakes.takeLines(), "title: Quillhue - Untitled\nstatus: 2 entries\nundo/redo: no/no\ndocument replaced\n");
}

TEST_F(PaletteDocumentTest, AnnouncesNamesAndSizes) {
  PaletteDocument& document = replace(createPalette(2), false, L"C:\\art\\sea.pal");
  EXPECT_EQ(fakes.takeLast("title: "), "Quillhue - sea.pal");
  document.setFileName(std::wstring(L"C:\\art\\sea.pal"));
  EXPECT_EQ(fakes.takeLines(), "");
  document.setFileName(std::wstring(L"plain/name"));
  document.setFileName(std::wstring(L"folder\\"));
  EXPECT_EQ(fakes.takeLines(), "title: Quillhue - plain/name\ntitle: Quillhue - \n");
  document.resize(-5);
  EXPECT_EQ(fakes.takeLast("status: "), "1 entry");
  document.undo();
  EXPECT_EQ(fakes.takeLast("status: "), "2 entries");
  document.redo();
  EXPECT_EQ(fakes.takeLast("status: "), "1 entry");
}

TEST_F(PaletteDocumentTest, SettersIgnoreWhatIsOutsideAndWhatIsLocked) {
  PaletteDocument& document = replace(createPalette(2, {9, 9, 9}));
  const auto setAll = [&](std::int32_t index) {
    document.setColor(index, {1, 1, 1});
    document.setRed(index, 2);
    document.setGreen(index, 3);
    document.setBlue(index, 4);
  };
  for (const std::int32_t index : {2, -1, kLeast}) {
    setAll(index);
    document.select(index);
    document.deselect(index);
  }
  EXPECT_EQ(document.getPalette(), createPalette(2, {9, 9, 9}));
  document.select(1);
  document.lock();
  setAll(1);
  document.applyChannels(7, createPalette(1));
  EXPECT_EQ(show(document.getPalette()), "9,9,9 9,9,9");
  document.unlock();
  setAll(1);
  EXPECT_EQ(show(document.getPalette()), "9,9,9 2,3,4");
  EXPECT_EQ(document.countSelected(), 1);
  document.deselect(1);
  EXPECT_EQ(document.countSelected(), 0);
  EXPECT_FALSE(document.isModified());
}

TEST(Utf8, ConvertsTextAndCarriesOtherBytesThrough) {
  EXPECT_EQ(fromUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8!"), L"a\u00E9\u20AC\U0001F3A8!");
  EXPECT_EQ(fromUtf8("\xFFy"), L"\xDCFFy");
  EXPECT_NE(toUtf8(L"\xDC2F"), "/");
  // Valid text; lone continuation and lead bytes; a truncated sequence; overlong forms; a surrogate; a code above the
  // last one.
  for (const std::string bytes : {"a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8!", "\x80", "x\xFFy", "\xE2\x82", "\xC0\x80",
                                  "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8\x88", "\xC3\xC3\xA9"}) {
    EXPECT_EQ(toUtf8(fromUtf8(bytes)), bytes);
  }
}

}  // namespace
}  // namespace quillhue
