#include <functional>

#include "commands/command_ids.h"
#include "formats/work_image.h"
#include "pictures/png_encoder.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/use_test.h"
#include "ui/win32/clipboard.h"

namespace quillhue {
namespace {

class Use : public UseTest {};

// Returns the bitmap as it is on the clipboard: without the file header.
std::string withoutFileHeader(const std::string& file) { return file.substr(14); }

TEST_F(Use, ImagesComeFromDialogDropAndClipboard) {
  open(brightPalette(16));
  EXPECT_FALSE(showsImage());
  const auto awaitImage = [&] {
    editor().await("the image", [&] { return showsImage(); });
    awaitShown({3, 3}, imageColors_.entry(9));
  };
  const auto clear = [&] {
    editor().run(command_id::kClear);
    EXPECT_TRUE(findControl(editor().window(), L"Static", L"No image"));
    awaitShown({3, 3}, systemColor(COLOR_APPWORKSPACE));
  };
  editor().click(L"&Load...");
  chooseFile(editor(), L"Open", indexed_);
  awaitImage();
  // The image stays if another one can't be loaded.
  editor().drop({folder_.file("none.bmp", bytesOf("BM nothing of the kind"))}, view());
  EXPECT_EQ(answerMessage(editor(), L"Error", IDOK), L"The image is too small.");
  awaitImage();
  clear();
  load(indexed_);
  awaitImage();
  clear();
  putOnClipboard(withoutFileHeader(folder_.contentOf("indexed.bmp")));
  tabTo(editor(), view());
  pressKey('V', {VK_CONTROL});
  awaitImage();
  // A palette is not an image. Pasting it changes nothing.
  editor().choosePage(kValuesPage);
  editor().run(command_id::kCopy);
  editor().choosePage(kUsePage);
  editor().run(command_id::kPaste);
  EXPECT_TRUE(showsImage());
  // The document, its name and its undo steps are unchanged.
  EXPECT_EQ(show(editor().saved()), show(brightPalette(16)));
  EXPECT_FALSE(isOffered(editor(), command_id::kUndo));
}

// The system's decoders and encoder handle other formats.
TEST_F(Use, OtherImagesComeInAndPngGoesOut) {
  open(brightPalette(20));
  Bytes rows(paddedRowLength(9) * 4, 7);
  rows[1] = 3;
  const std::vector<PaletteEntry> colors = entriesOf(imageColors_);
  const Bytes png = composePng({{9, 4, rows}, colors, std::bitset<256>().set(3)}).value();
  const auto awaitImage = [&](PaletteEntry first) {
    editor().await("the image", [&] { return showsImage(); });
    awaitShown({0, 0}, first);
  };
  editor().click(L"&Load...");
  chooseFile(editor(), L"Open", folder_.file("image.png", png));
  awaitImage(imageColors_.entry(7));
  // Transparent pixels have the blank color.
  awaitShown({1, 0}, {0, 0, 0});
  load(direct_);
  process();
  EXPECT_EQ(result(L".png"), toolsResult(direct_, L"nearest", {}, L".png"));
  // A pixel of (200, 100, 50).
  load(folder_.file("image.gif",
                    bytesOf({"GIF89a\1\0\1\0\x80\0\0\xC8\x64\x32\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35})));
  awaitImage({200, 100, 50});
  {
    ClipboardAccess clipboard(editor().window());
    clipboard.empty();
    EXPECT_TRUE(clipboard.put(RegisterClipboardFormatW(L"PNG"), png));
  }
  editor().run(command_id::kPaste);
  awaitImage(imageColors_.entry(7));
  editor().drop({folder_.file("none.txt", bytesOf("no image"))}, view());
  EXPECT_EQ(answerMessage(editor(), L"Error", IDOK), L"Quillhue could not recognise this file type.");
  awaitImage(imageColors_.entry(7));
}

TEST_F(Use, ControlsFollowTheImageAndTheMode) {
  open(brightPalette(20));
  const auto clicks = [&](const wchar_t* text) { return [this, text] { editor().click(text); }; };
  const struct {
    const char* what;
    std::function<void()> act;
    std::string expected;
  } kSteps[] = {
      {"start", [] {}, "+ x-- -- --- --"},
      {"indexed", [&] { load(indexed_); }, "+ X++ -- --- +-"},
      {"dither", clicks(L"&Dither"), "+ ++X +- +-- +-"},
      {"protect color", clicks(L"Protect &color:"), "+ ++X X+ +-- +-"},
      {"protect grid", clicks(L"Protect gr&id:"), "+ ++X X+ X++ +-"},
      {"process", [&] { process(); }, "+ ++X X+ X++ ++"},
      {"maintain", clicks(L"&Maintain mapping"), "+ X++ x- x-- ++"},
      {"direct", [&] { load(direct_); }, "+ -X+ x- x-- +-"},
      {"clear", [&] { editor().run(command_id::kClear); }, "+ -x- x- x-- --"},
  };
  for (auto [what, act, expected] : kSteps) {
    act();
    std::erase(expected, ' ');
    EXPECT_EQ(controls(), expected) << what;
  }
}

TEST_F(Use, ResultIsWhatTheToolMakes) {
  const struct {
    std::int32_t paletteSize;
    bool isIndexed;
    const wchar_t* mode;
    std::wstring toolsMode;
    std::vector<std::wstring> options{};
    // The protected color, and width and height of the protected grid.
    std::vector<const char*> typed{};
  } kCases[] = {
      {100, true, L"&Maintain mapping", L"maintain"},
      {16, false, L"&Nearest match", L"nearest"},
      {17, false, L"&Dither", L"dither", {L"--protect-color=5", L"--protect-grid=20x7"}, {"5", "20", "7"}},
      {17, true, L"&Dither", L"dither", {L"--protect-color=16", L"--protect-grid=1x1000"}, {"99", "0", "5000"}},
  };
  for (const auto& [size, isIndexed, mode, toolsMode, options, typed] : kCases) {
    SCOPED_TRACE(narrow(toolsMode) + ' ' + std::to_string(size));
    open(brightPalette(size));
    load(isIndexed ? indexed_ : direct_);
    editor().click(mode);
    if (!typed.empty()) {
      editor().click(L"Protect &color:");
      editor().click(L"Protect gr&id:");
      for (const Field each : {Field::color, Field::width, Field::height}) {
        editor().typeInto(field(each), typed[static_cast<std::size_t>(each)]);
      }
    }
    process();
    EXPECT_EQ(result(), toolsResult(isIndexed ? indexed_ : direct_, toolsMode, options));
  }
}

TEST_F(Use, CopyGivesTheBitmap) {
  open(brightPalette(30));
  load(indexed_);
  tabTo(editor(), view());
  pressKey('C', {VK_CONTROL});
  editor().awaitInput();
  EXPECT_EQ(clipboardBitmap(), withoutFileHeader(folder_.contentOf("indexed.bmp")));
  process();
  editor().run(command_id::kCopy);
  EXPECT_EQ(clipboardBitmap(), withoutFileHeader(result()));
  // The copied result can be pasted as an image.
  editor().run(command_id::kPaste);
  editor().await("no result", [&] { return !isUsable(L"&Save as..."); });
  // Without an image there is nothing to copy.
  const std::string before = clipboardBitmap();
  editor().run(command_id::kClear);
  editor().run(command_id::kCopy);
  EXPECT_EQ(clipboardBitmap(), before);
}

TEST_F(Use, WhatCantBeCopiedIsNotCut) {
  open(brightPalette(4));
  load(indexed_);
  for (const int page : {kUsePage, kValuesPage, kEffectsPage}) {
    editor().choosePage(page);
    const ClipboardAccess taken(nullptr);
    editor().run(command_id::kCut);
  }
  EXPECT_FALSE(isOffered(editor(), command_id::kUndo));
  editor().choosePage(kUsePage);
  EXPECT_TRUE(showsImage());
  // In a field, Del edits the text.
  editor().click(L"&Dither");
  editor().click(L"Protect gr&id:");
  editor().typeInto(field(Field::width), "5");
  pressKey(VK_DELETE);
  editor().awaitInput();
  EXPECT_TRUE(showsImage());
  // Tests "Scroll Here" of a scroll bar.
  editor().resize({600, 376});
  HWND bar = findControls(editor().window(), L"ScrollBar")[0];
  editor().ask(editor().window(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 3), reinterpret_cast<LPARAM>(bar));
  editor().awaitInput();
}

// An index one past the palette's end is kept. It has the blank color in the file.
TEST_F(Use, MaintainedIndexesLookAsTheyAreSaved) {
  store({{"Blank", {250, 20, 90}}});
  open(brightPalette(20));
  load(indexed_);
  process();
  ASSERT_EQ(indexAt({20, 0}), 20);
  awaitShown({20, 0}, {250, 20, 90});
  // The color in the file's table of blue, green, red.
  EXPECT_EQ(result().substr(54 + 4 * 20, 3), "\x5A\x14\xFA");
}

TEST_F(Use, ResultKeepsItsColorsUntilTheNextRun) {
  open(brightPalette(2));
  load(indexed_);
  editor().click(L"&Nearest match");
  editor().click(L"&Process");
  awaitShown({28, 1}, brightPalette(2).entry(1));
  editor().drop({paletteFile("other.pal", brightPalette(40))});
  editor().awaitTitle(L"Quillhue - other.pal");
  EXPECT_TRUE(showsImage());
  awaitShown({28, 1}, brightPalette(2).entry(1));
  editor().click(L"&Process");
  awaitShown({28, 1}, brightPalette(40).entry(30));
}

TEST_F(Use, ProtectedColorIsOneOfThePalette) {
  open(brightPalette(20));
  load(indexed_);
  editor().click(L"&Dither");
  editor().click(L"Protect &color:");
  editor().typeInto(field(Field::color), "20");
  pressKey(VK_TAB);
  editor().awaitEqual(std::wstring(L"19"), [&] { return textOf(field(Field::color)); });
  // Another document has another range.
  editor().drop({paletteFile("small.pal", brightPalette(6))});
  editor().awaitTitle(L"Quillhue - small.pal");
  EXPECT_EQ(textOf(field(Field::color)), L"5");
}

}  // namespace
}  // namespace quillhue
