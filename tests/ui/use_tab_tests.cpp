#include <functional>

#include "ui/logic/command_ids.h"
#include "ui/support/drop.h"
#include "ui/support/input.h"
#include "ui/support/use_test.h"

namespace quillhue {
namespace {

class Use : public UseTest {};

// A bitmap as the clipboard has it: without the file's own header.
std::string withoutFileHeader(const std::string& file) { return file.substr(14); }

TEST_F(Use, ImagesComeFromDialogDropAndClipboard) {
  open(brightPalette(16));
  EXPECT_FALSE(showsImage());
  const auto expectShown = [&](std::int32_t index) {
    editor().await("the image in view", [&] { return pixelOf(view(), {3, 3}) == imageColors_.entry(index); });
  };
  clickAt(editor(), middleOf(editor().button(L"&Load...")));
  chooseFile(editor(), L"Open", indexed_);
  editor().await("the image", [&] { return showsImage(); });
  expectShown(9);
  // It is there still when another can't be loaded.
  dropFiles(editor(), {folder_.file("none.bmp", bytesOf("BM nothing of the kind"))}, view());
  EXPECT_NE(answerMessage(editor(), L"Error", IDOK), L"");
  EXPECT_TRUE(showsImage());
  expectShown(9);
  editor().run(command_id::kClear);
  EXPECT_FALSE(showsImage());
  load(indexed_);
  expectShown(9);
  editor().run(command_id::kClear);
  EXPECT_FALSE(showsImage());
  putOnClipboard(withoutFileHeader(folder_.contentOf("indexed.bmp")));
  editor().focus(view());
  pressKey('V', {VK_CONTROL});
  editor().await("the image", [&] { return showsImage(); });
  expectShown(9);
  // A palette is no image, and changes nothing.
  putOnClipboard(std::vector<PaletteEntry>{{1, 2, 3}});
  editor().run(command_id::kPaste);
  EXPECT_TRUE(showsImage());
  // The document is the same, and so are its name and its steps.
  EXPECT_EQ(show(saved(editor())), show(brightPalette(16)));
  EXPECT_EQ(editor().undoAll(), 0);
}

TEST_F(Use, ControlsFollowTheImageAndTheMode) {
  struct Step {
    const char* what;
    std::function<void()> act;
    // Load, the three modes (the chosen one is a capital letter), Protect color with its field, Protect grid with its
    // two, Process, Save as.
    const char* usable;
  };
  open(brightPalette(20));
  const auto clicks = [&](const wchar_t* text) { return [this, text] { editor().click(editor().button(text)); }; };
  const Step kSteps[] = {
      {"start", [] {}, "l M-- -- --- --"},
      {"indexed", [&] { load(indexed_); }, "l Mnd -- --- p-"},
      {"nearest", clicks(L"&Nearest match"), "l mNd -- --- p-"},
      {"dither", clicks(L"&Dither"), "l mnD c- g-- p-"},
      {"protect color", clicks(L"Protect &color:"), "l mnD cf g-- p-"},
      {"protect grid", clicks(L"Protect gr&id:"), "l mnD cf gwh p-"},
      {"maintain", clicks(L"&Maintain mapping"), "l Mnd -- --- p-"},
      {"process", [&] { process(); }, "l Mnd -- --- ps"},
      {"direct", [&] { load(direct_); }, "l -Nd -- --- p-"},
      {"click on maintain", clicks(L"&Maintain mapping"), "l -Nd -- --- p-"},
      {"dither again", clicks(L"&Dither"), "l -nD cf gwh p-"},
      {"process again", [&] { process(); }, "l -nD cf gwh ps"},
      {"no protected color", clicks(L"Protect &color:"), "l -nD c- gwh ps"},
      {"indexed again", [&] { load(indexed_); }, "l mnD c- gwh p-"},
  };
  const auto letter = [](bool usable, char name) { return usable ? name : '-'; };
  const auto mode = [&](const wchar_t* text, char name) {
    const bool isChosen = editor().ask(editor().button(text), BM_GETCHECK) == BST_CHECKED;
    return isChosen ? static_cast<char>(name - 'a' + 'A') : letter(isUsable(text), name);
  };
  const auto number = [&](Field one, char name) { return letter(IsWindowEnabled(field(one)) != 0, name); };
  for (const auto& [what, act, usable] : kSteps) {
    act();
    const std::string found{letter(isUsable(L"&Load..."), 'l'),
                            ' ',
                            mode(L"&Maintain mapping", 'm'),
                            mode(L"&Nearest match", 'n'),
                            mode(L"&Dither", 'd'),
                            ' ',
                            letter(isUsable(L"Protect &color:"), 'c'),
                            number(Field::color, 'f'),
                            ' ',
                            letter(isUsable(L"Protect gr&id:"), 'g'),
                            number(Field::width, 'w'),
                            number(Field::height, 'h'),
                            ' ',
                            letter(isUsable(L"&Process"), 'p'),
                            letter(isUsable(L"&Save as..."), 's')};
    EXPECT_EQ(found, usable) << what;
  }
}

TEST_F(Use, ClearForgetsTheImageAndTheResult) {
  open(brightPalette(20));
  load(direct_);
  process();
  editor().run(command_id::kClear);
  EXPECT_TRUE(findControl(editor().window(), L"Static", L"No image"));
  for (const wchar_t* text : {L"&Maintain mapping", L"&Nearest match", L"&Dither", L"&Process", L"&Save as..."}) {
    EXPECT_FALSE(isUsable(text)) << narrow(text);
  }
  const COLORREF empty = GetSysColor(COLOR_APPWORKSPACE);
  editor().await("the empty view", [&] {
    return pixelOf(view(), {3, 3}) == PaletteEntry{GetRValue(empty), GetGValue(empty), GetBValue(empty)};
  });
}

TEST_F(Use, ResultIsWhatTheToolMakes) {
  const struct {
    std::int32_t paletteSize;
    bool isIndexed;
    const wchar_t* mode;
    const char* color;
    const char* width;
    const char* height;
    std::vector<std::wstring> options;
  } kCases[] = {
      {100, true, L"&Maintain mapping", nullptr, nullptr, nullptr, {L"--mode", L"maintain"}},
      {16, true, L"&Nearest match", nullptr, nullptr, nullptr, {L"--mode", L"nearest"}},
      {16, false, L"&Nearest match", nullptr, nullptr, nullptr, {L"--mode", L"nearest"}},
      {17, true, L"&Dither", nullptr, nullptr, nullptr, {L"--mode", L"dither"}},
      {17,
       false,
       L"&Dither",
       "5",
       "20",
       "7",
       {L"--mode", L"dither", L"--protect-color", L"5", L"--protect-grid", L"20x7"}},
      {17,
       true,
       L"&Dither",
       "99",
       "0",
       "5000",
       {L"--mode", L"dither", L"--protect-color", L"16", L"--protect-grid", L"1x1000"}},
  };
  for (const auto& [size, isIndexed, mode, color, width, height, options] : kCases) {
    SCOPED_TRACE(narrow(options[1]) + ' ' + std::to_string(size));
    open(brightPalette(size));
    load(isIndexed ? indexed_ : direct_);
    editor().click(editor().button(mode));
    if (color != nullptr) {
      editor().click(editor().button(L"Protect &color:"));
      editor().typeInto(field(Field::color), color);
      editor().click(editor().button(L"Protect gr&id:"));
      editor().typeInto(field(Field::width), width);
      editor().typeInto(field(Field::height), height);
    }
    process();
    EXPECT_EQ(result(), toolsResult(isIndexed ? indexed_ : direct_, options));
  }
}

TEST_F(Use, CopyGivesTheBitmap) {
  open(brightPalette(30));
  load(indexed_);
  emptyClipboard();
  editor().focus(view());
  pressKey('C', {VK_CONTROL});
  editor().awaitInput();
  EXPECT_EQ(clipboardBitmap(), withoutFileHeader(folder_.contentOf("indexed.bmp")));
  load(direct_);
  editor().run(command_id::kCopy);
  // The header of the file that a test makes leaves out what is no size.
  const std::string pixels = folder_.contentOf("direct.bmp").substr(54);
  EXPECT_EQ(clipboardBitmap().substr(40), pixels);
  process();
  editor().run(command_id::kCopy);
  EXPECT_EQ(clipboardBitmap(), withoutFileHeader(result()));
  // And back: the result is an image like any other.
  editor().run(command_id::kPaste);
  editor().await("no result", [&] { return !isUsable(L"&Save as..."); });
  EXPECT_TRUE(isUsable(L"&Maintain mapping"));
  // Without an image there is nothing to copy.
  const std::string before = clipboardBitmap();
  editor().run(command_id::kClear);
  editor().run(command_id::kCopy);
  EXPECT_EQ(clipboardBitmap(), before);
}

TEST_F(Use, ResultKeepsItsColorsUntilTheNextRun) {
  const Palette other = brightPalette(40);
  open(brightPalette(2));
  load(indexed_);
  editor().click(editor().button(L"&Nearest match"));
  editor().click(editor().button(L"&Process"));
  const auto awaitColor = [&](PaletteEntry color) {
    editor().await("the color of the result", [&] { return pixelOf(view(), {28, 1}) == color; });
  };
  awaitColor(brightPalette(2).entry(1));
  dropFiles(editor(), {paletteFile("other.pal", other)});
  editor().awaitTitle(L"Quillhue - other.pal");
  choosePage(editor(), kUsePage);
  EXPECT_TRUE(showsImage());
  awaitColor(brightPalette(2).entry(1));
  editor().click(editor().button(L"&Process"));
  awaitColor(other.entry(30));
}

TEST_F(Use, ProtectedColorIsOneOfThePalette) {
  open(brightPalette(20));
  load(indexed_);
  editor().click(editor().button(L"&Dither"));
  editor().click(editor().button(L"Protect &color:"));
  const auto expectTyped = [&](const char* typed, const wchar_t* settled) {
    editor().typeInto(field(Field::color), typed);
    pressKey(VK_TAB);
    editor().awaitText(field(Field::color), settled);
  };
  expectTyped("20", L"19");
  // Another document has another range, and what was chosen stays within it.
  dropFiles(editor(), {paletteFile("small.pal", brightPalette(6))});
  editor().awaitTitle(L"Quillhue - small.pal");
  EXPECT_EQ(textOf(field(Field::color)), L"5");
  expectTyped("6", L"5");
  dropFiles(editor(), {paletteFile("large.gpl", brightPalette(300))});
  editor().awaitTitle(L"Quillhue - large.gpl");
  expectTyped("500", L"299");
}

}  // namespace
}  // namespace quillhue
