#include "core/generators.h"
#include "core/palette_format.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "support/bitmaps.h"
#include "ui/logic/command_ids.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/drop.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Documents : public UiTest {
 protected:
  // Opens the file and changes its first entry, to black.
  static void openAndModify(const Program& program) {
    program.await("the editor", [&] { return tabControl(program); });
    program.run(command_id::kClear);
  }
};

// What happens at a place that discards the document, once that is allowed.
enum class Then { asks, replaces, ends };

TEST_F(Documents, AreNotDiscardedWithoutTheQuestion) {
  const std::wstring other = paletteFile("other.pal", brightPalette(3));
  const auto byCommand = [](std::int32_t command) {
    return [command](const Program& program) { program.start(command); };
  };
  const struct {
    std::string place;
    std::function<void(const Program&)> go;
    Then then;
    std::wstring asks{};
  } kPlaces[] = {
      {"New blank", byCommand(command_id::kNewBlank), Then::asks, L"New palette properties"},
      {"New greyscale", byCommand(command_id::kNewGreyscale), Then::asks, L"Palette size"},
      {"New RGB", byCommand(command_id::kNewRgb), Then::asks, L"New palette properties"},
      {"New system palette", byCommand(command_id::kFirstSystemPalette), Then::replaces},
      {"Open", byCommand(command_id::kOpen), Then::asks, L"Open"},
      {"a dropped file", [&](const Program& program) { dropFiles(program, {other}); }, Then::replaces},
      {"Exit", byCommand(command_id::kExit), Then::ends},
      {"the window's close", [](const Program& program) { program.post(program.window(), WM_CLOSE); }, Then::ends},
  };
  const Palette palette = brightPalette(4);
  for (const int answer : {IDCANCEL, IDNO, IDYES}) {
    for (const auto& [place, go, then, asks] : kPlaces) {
      SCOPED_TRACE(place + ", answer " + std::to_string(answer));
      const std::wstring file = paletteFile("own.pal", palette);
      Program program({file});
      openAndModify(program);
      go(program);
      EXPECT_EQ(answerMessage(program, L"Warning", answer), L"Do you want to save the current palette?");
      if (answer == IDCANCEL) {
        // It is as before, and asks again.
        EXPECT_EQ(textOf(program.window()), L"Quillhue - own.pal");
        EXPECT_EQ(statusText(program, 0), L"4 entries");
        go(program);
        answerMessage(program, L"Warning", IDCANCEL);
        continue;
      }
      if (then == Then::asks) {
        Dialog(program, asks).answer(IDCANCEL);
      } else if (then == Then::replaces) {
        program.await("another document", [&] { return textOf(program.window()) != L"Quillhue - own.pal"; });
      } else {
        EXPECT_EQ(program.awaitEnd(), 0U);
      }
      Palette expected = palette;
      if (answer == IDYES) {
        expected.setEntry(0, {});
      }
      EXPECT_EQ(show(paletteIn(file)), show(expected));
    }
  }
}

TEST_F(Documents, AreDiscardedAtOnceWhenUnmodified) {
  Program program({paletteFile("own.pal", brightPalette(4))});
  openAndModify(program);
  program.run(command_id::kUndo);
  program.run(command_id::kNewWindows);
  EXPECT_EQ(textOf(program.window()), L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program, 0), L"16 entries");
  program.close();
}

TEST_F(Documents, OfADialogAreModified) {
  Program program;
  program.start(command_id::kNewGreyscale);
  {
    const Dialog dialog(program, L"Palette size");
    EXPECT_EQ(dialog.typed(NEW_MINIMUM), L"(min. 1)");
    dialog.type(NEW_SIZE, L"3");
    dialog.answer(IDOK);
  }
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program, 0), L"3 entries");
  // Saving an untitled document that is about to be discarded asks for a name; without one it stays.
  program.post(program.window(), WM_CLOSE);
  answerMessage(program, L"Warning", IDYES);
  Dialog(program, L"Save As").answer(IDCANCEL);
  EXPECT_EQ(textOf(program.window()), L"Quillhue - Untitled");
  program.post(program.window(), WM_CLOSE);
  answerMessage(program, L"Warning", IDYES);
  const std::wstring file = folder_.name("grey.gpl");
  chooseFile(program, L"Save As", file, palette_format::kGimp - 1);
  EXPECT_EQ(program.awaitEnd(), 0U);
  EXPECT_EQ(show(paletteIn(file)), show(createGreyscalePalette(3)));
}

TEST_F(Documents, AreSavedUnderANameWithItsExtension) {
  const struct {
    PaletteFormat type;
    const char* typed;
    const char* written;
  } kCases[] = {
      {palette_format::kJasc, "plain", "plain.pal"},         {palette_format::kJasc, "has.act", "has.act"},
      {palette_format::kJasc, "four.jpeg", "four.jpeg.pal"}, {palette_format::kGimp, "needs none", "needs none"},
      {palette_format::kCsv, "lines", "lines.csv"},
  };
  Program program({paletteFile("own.pal", brightPalette(4))});
  program.await("the editor", [&] { return tabControl(program); });
  for (const auto& [type, typed, written] : kCases) {
    program.start(command_id::kSaveAs);
    chooseFile(program, L"Save As", folder_.name(typed), static_cast<int>(type) - 1);
    program.awaitTitle(L"Quillhue - " + fromUtf8(written));
    EXPECT_TRUE(fileExists(folder_.name(written))) << written;
  }
  // A file that is there is asked for once, and the name with its extension counts.
  const std::string before = folder_.contentOf("plain.pal");
  program.run(command_id::kClear);
  for (const int answer : {IDNO, IDYES}) {
    program.start(command_id::kSaveAs);
    chooseFile(program, L"Save As", folder_.name("plain"), palette_format::kJasc - 1);
    EXPECT_EQ(answerMessage(program, L"Save As", answer), L"This file already exists.\nDo you want to replace it?");
    if (answer == IDNO) {
      EXPECT_EQ(folder_.contentOf("plain.pal"), before);
      EXPECT_EQ(textOf(program.window()), L"Quillhue - lines.csv");
    }
  }
  program.awaitTitle(L"Quillhue - plain.pal");
  EXPECT_NE(folder_.contentOf("plain.pal"), before);
  program.close();
}

TEST_F(Documents, TellWhyTheyCantBeSaved) {
  const std::wstring large = paletteFile("large.pal", brightPalette(300));
  Program program({large});
  program.await("the editor", [&] { return tabControl(program); });
  program.start(command_id::kSaveAs);
  chooseFile(program, L"Save As", folder_.name("large"), palette_format::kAdobeColorTable - 1);
  EXPECT_EQ(answerMessage(program, L"Error", IDOK),
            L"The palette is too large for the selected format.\n"
            L"Use the Gimp, RIFF, or Windows Clipboard format instead.");
  EXPECT_EQ(textOf(program.window()), L"Quillhue - large.pal");
  EXPECT_FALSE(fileExists(folder_.name("large.act")));
  program.close();
}

TEST_F(Documents, ComeFromDroppedFiles) {
  const std::wstring first = paletteFile("first.pal", brightPalette(3));
  const std::wstring second = paletteFile("second.pal", brightPalette(7));
  Program program;
  dropFiles(program, {first, second});
  program.awaitTitle(L"Quillhue - first.pal");
  EXPECT_EQ(statusText(program, 0), L"3 entries");
  dropFiles(program, {second});
  program.awaitTitle(L"Quillhue - second.pal");
  dropFiles(program, {folder_.name("missing.pal")});
  EXPECT_EQ(answerMessage(program, L"Error", IDOK), L"Could not open the file.");
  EXPECT_EQ(textOf(program.window()), L"Quillhue - second.pal");
  program.close();
}

TEST_F(Documents, ComeFromTheOpenDialog) {
  const std::wstring file = paletteFile("chosen.pal", brightPalette(9));
  Program program;
  program.start(command_id::kOpen);
  chooseFile(program, L"Open", file);
  program.awaitTitle(L"Quillhue - chosen.pal");
  EXPECT_EQ(statusText(program, 0), L"9 entries");
  program.close();
}

// An image of true colors asks how to make a palette of it.
TEST_F(Documents, ComeFromTheColorsOfAnImage) {
  const std::wstring image = folder_.file("image.bmp", bitmapOf(2, 24, {1, 2, 3, 3}));
  Program program;
  {
    dropFiles(program, {image});
    const Dialog dialog(program, L"Create from image");
    EXPECT_NE(
        dialog.text().find(L"This image does not have a palette, but its\ncolors can be used to create a new one.\n"
                           L"3 different colors found in the image."),
        std::wstring::npos)
        << narrow(dialog.text());
    EXPECT_EQ(dialog.typed(FROM_IMAGE_SIZE), L"3");
    for (const wchar_t* size : {L"0", L"1025", L""}) {
      dialog.type(FROM_IMAGE_SIZE, size);
      dialog.press(FROM_IMAGE_REDUCE);
      const Dialog refusal(program, L"Error");
      EXPECT_EQ(refusal.text(), L"The palette size must be a number from 1 to 1024.");
      // The refusal has to be answered first.
      EXPECT_FALSE(IsWindowEnabled(dialog.window())) << narrow(size);
      refusal.answer(IDOK);
    }
    dialog.answer(IDCANCEL);
    EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  }
  const struct {
    const wchar_t* size;
    int button;
    const wchar_t* entries;
  } kCases[] = {{L"3", FROM_IMAGE_USE_ALL, L"3 entries"},
                {L"1", FROM_IMAGE_USE_ALL, L"3 entries"},
                {L"7", FROM_IMAGE_USE_ALL, L"7 entries"},
                {L"2", FROM_IMAGE_REDUCE, L"2 entries"}};
  bool isModified = false;
  for (const auto& [size, button, entries] : kCases) {
    dropFiles(program, {image});
    if (isModified) {
      answerMessage(program, L"Warning", IDNO);
    }
    const Dialog dialog(program, L"Create from image");
    dialog.type(FROM_IMAGE_SIZE, size);
    dialog.answer(button);
    program.awaitTitle(L"Quillhue - Untitled");
    program.await("the entries", [&] { return statusText(program, 0) == entries; });
    isModified = true;
  }
}

}  // namespace
}  // namespace quillhue
