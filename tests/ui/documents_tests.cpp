#include <functional>
#include <future>

#include "commands/command_ids.h"
#include "core/generators.h"
#include "core/palette_format.h"
#include "core/utf8.h"
#include "support/bitmaps.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Documents : public UiTest {};

TEST_F(Documents, AreNotDiscardedWithoutTheQuestion) {
  const std::wstring other = paletteFile("other.pal", brightPalette(3));
  const auto byCommand = [](std::int32_t command) {
    return [command](const Program& program) { program.start(command); };
  };
  const struct {
    std::string place;
    std::function<void(const Program&)> go;
    // The dialog that opens after the answer, if any.
    std::wstring asks{};
    int answer = IDNO;
  } kPlaces[] = {
      {"New blank", byCommand(command_id::kNewBlank), L"New palette properties"},
      {"New greyscale", byCommand(command_id::kNewGreyscale), L"Palette size", IDYES},
      {"New RGB", byCommand(command_id::kNewRgb), L"New palette properties"},
      {"New system palette", byCommand(command_id::kFirstSystemPalette)},
      {"Open", byCommand(command_id::kOpen), L"Open"},
      {"a dropped file", [&](const Program& program) { program.drop({other}); }},
      {"Exit", byCommand(command_id::kExit)},
      {"the window's close", [](const Program& program) { program.post(program.window(), WM_CLOSE); }, L"", IDYES},
  };
  for (const auto& [place, go, asks, answer] : kPlaces) {
    SCOPED_TRACE(place);
    Palette expected = brightPalette(4);
    const Editor& editor = open(expected);
    editor.run(command_id::kClear);
    // After Cancel nothing has changed, and the question comes again.
    for (const int button : {IDCANCEL, answer}) {
      EXPECT_EQ(textOf(editor.window()) + statusText(editor), L"Quillhue - own.pal4 entries");
      go(editor);
      EXPECT_EQ(answerMessage(editor, L"Warning", button), L"Do you want to save the current palette?");
    }
    if (!asks.empty()) {
      Dialog(editor, asks).answer(IDCANCEL);
    } else {
      editor.await("another document or the end",
                   [&] { return !editor.isRunning() || textOf(editor.window()) != L"Quillhue - own.pal"; });
    }
    if (answer == IDYES) {
      expected.setEntry(0, {});
    }
    EXPECT_EQ(show(paletteIn(editor.file())), show(expected));
  }
}

// A save ends the run of changes of one number.
TEST_F(Documents, AreAskedForAgainAfterASave) {
  const Editor& editor = open(brightPalette(4));
  HWND field = findControls(editor.window(), L"Edit")[0];
  editor.typeInto(field, "77");
  editor.start(command_id::kSaveAs);
  Dialog(editor, L"Save As").answer(IDCANCEL);
  editor.typeInto(field, "78");
  EXPECT_EQ(editor.saved().entry(0).red, 78);
  editor.typeInto(field, "79");
  // No message of another program closes the window without the question.
  editor.ask(editor.window(), WM_APP);
  editor.post(editor.window(), WM_CLOSE);
  answerMessage(editor, L"Warning", IDYES);
  EXPECT_EQ(editor.awaitEnd(), 0U);
  EXPECT_EQ(paletteIn(editor.file()).entry(0).red, 79);
}

TEST_F(Documents, AreAskedForWhenTheSessionEnds) {
  const Editor& editor = open(brightPalette(4));
  const auto maySessionEnd = [&] { return editor.ask(editor.window(), WM_QUERYENDSESSION); };
  EXPECT_EQ(maySessionEnd(), TRUE);
  // The program can't ask while a dialog is open. It then refuses to end the session only if changes would be lost.
  const auto mayEndOverADialog = [&] {
    editor.start(command_id::kAbout);
    const Dialog about(editor, L"About Quillhue");
    const LRESULT answer = maySessionEnd();
    about.answer(IDOK);
    return answer;
  };
  EXPECT_EQ(mayEndOverADialog(), TRUE);
  editor.run(command_id::kClear);
  EXPECT_EQ(mayEndOverADialog(), FALSE);
  for (const auto& [answer, mayEnd] : {std::pair{IDCANCEL, FALSE}, {IDNO, TRUE}, {IDYES, TRUE}}) {
    auto asked = std::async(std::launch::async, maySessionEnd);
    answerMessage(editor, L"Warning", answer);
    EXPECT_EQ(asked.get(), mayEnd) << answer;
  }
  EXPECT_EQ(paletteIn(editor.file()).entry(0), PaletteEntry{});
  // Another program may have refused. Otherwise the program ends without a further message.
  editor.ask(editor.window(), WM_ENDSESSION, FALSE);
  EXPECT_TRUE(storedSettings().empty());
  editor.ask(editor.window(), WM_ENDSESSION, TRUE);
  EXPECT_FALSE(storedSettings().empty());
}

TEST_F(Documents, OfADialogAreModified) {
  const Program program;
  program.start(command_id::kNewGreyscale);
  {
    const Dialog dialog(program, L"Palette size");
    EXPECT_EQ(dialog.typed(NEW_MINIMUM), L"(min. 1)");
    dialog.type(NEW_SIZE, L"3");
    dialog.answer(IDOK);
  }
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program), L"3 entries");
  // Before an untitled document is discarded, saving it asks for a name. Without a name it stays open.
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
  const Editor& editor = open(brightPalette(4));
  const auto saveAs = [&](const std::string& name, PaletteFormat type) {
    editor.start(command_id::kSaveAs);
    chooseFile(editor, L"Save As", folder_.name(name), static_cast<int>(type) - 1);
  };
  saveAs("plain", palette_format::kJasc);
  editor.awaitTitle(L"Quillhue - plain.pal");
  // The dialog itself does not ask, because only the name with the extension exists.
  saveAs("own", palette_format::kJasc);
  EXPECT_EQ(answerMessage(editor, L"Save As", IDNO), L"This file already exists.\nDo you want to replace it?");
  EXPECT_EQ(textOf(editor.window()), L"Quillhue - plain.pal");
  saveAs("own", palette_format::kJasc);
  answerMessage(editor, L"Save As", IDYES);
  editor.awaitTitle(L"Quillhue - own.pal");
  // One character longer than the dialog allows. Wine's dialog allows at most 259 characters.
  saveAs(std::string(256 - folder_.name("").size(), 'n'), palette_format::kCsv);
  EXPECT_EQ(answerMessage(editor, L"Error", IDOK), L"The name of the file is too long.");
}

TEST_F(Documents, ComeFromFiles) {
  const std::wstring first = paletteFile("first.pal", brightPalette(3));
  const std::wstring second = paletteFile("second.pal", brightPalette(7));
  const Program program;
  program.start(command_id::kOpen);
  chooseFile(program, L"Open", paletteFile("chosen.pal", brightPalette(9)));
  program.awaitTitle(L"Quillhue - chosen.pal");
  EXPECT_EQ(statusText(program), L"9 entries");
  program.drop({first, second});
  program.awaitTitle(L"Quillhue - first.pal");
  EXPECT_EQ(statusText(program), L"3 entries");
  program.drop({second});
  program.awaitTitle(L"Quillhue - second.pal");
  program.drop({folder_.name("missing.pal")});
  EXPECT_EQ(answerMessage(program, L"Error", IDOK), L"Could not open the file.");
  EXPECT_EQ(textOf(program.window()), L"Quillhue - second.pal");
  program.close();
}

// An image of true colors asks how to make a palette of it.
TEST_F(Documents, ComeFromTheColorsOfAnImage) {
  const std::wstring image = folder_.file("image.bmp", bitmapOf(2, 24, {1, 2, 3, 3}));
  const Program program;
  {
    program.drop({image});
    const Dialog dialog(program, L"Create from image");
    EXPECT_TRUE(dialog.text().contains(L"its\ncolors can be used to create a new one.\n3 different colors found"))
        << narrow(dialog.text());
    EXPECT_EQ(dialog.typed(FROM_IMAGE_SIZE), L"3");
    dialog.type(FROM_IMAGE_SIZE, L"0");
    dialog.press(FROM_IMAGE_REDUCE);
    EXPECT_EQ(answerMessage(program, L"Error", IDOK), L"The palette size must be a number from 1 to 1024.");
    dialog.answer(IDCANCEL);
    EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  }
  for (const auto& [size, button, entries] :
       {std::tuple{L"7", FROM_IMAGE_USE_ALL, L"7 entries"}, {L"2", FROM_IMAGE_REDUCE, L"2 entries"}}) {
    program.drop({image});
    if (button == FROM_IMAGE_REDUCE) {
      answerMessage(program, L"Warning", IDNO);
    }
    const Dialog dialog(program, L"Create from image");
    dialog.type(FROM_IMAGE_SIZE, size);
    dialog.answer(button);
    program.awaitEqual(std::wstring(entries), [&] { return statusText(program); });
  }
}

}  // namespace
}  // namespace quillhue
