#include "commands/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/ui_test.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

class Ends : public UiTest {};

TEST_F(Ends, AWindowClosedDuringADragAsksAndKeepsWhatWasDragged) {
  const Editor& editor = open(brightPalette(16), kEffectsPage);
  activate(editor);
  moveTo(editor, editor.entryPoint(1));
  press();
  moveTo(editor, editor.entryPoint(3));
  editor.awaitInput();
  editor.post(editor.window(), WM_CLOSE);
  EXPECT_EQ(answerMessage(editor, L"Warning", IDCANCEL), L"Do you want to save the current palette?");
  release();
  // The drag was one step.
  editor.run(command_id::kUndo);
  editor.close();
}

// One has ended without a word after it copied; the other one goes on.
TEST_F(Ends, APasteSurvivesTheCrashOfTheClipboardsOwner) {
  const Editor& editor = open(brightPalette(4), kEffectsPage);
  {
    const Editor other(paletteFile("other.pal", createPalette(1, {1, 2, 3})));
    other.run(command_id::kCopy);
    TerminateProcess(other.process(), 1);
    other.awaitEnd();
  }
  editor.run(command_id::kSelectAll);
  editor.run(command_id::kPaste);
  EXPECT_EQ(editor.saved().entry(0), (PaletteEntry{1, 2, 3}));
  editor.close();
}

TEST_F(Ends, OfTwoEditorsTheLastOneToSaveWins) {
  const Editor& first = open(brightPalette(4));
  const Editor second(first.file());
  first.run(command_id::kClear);
  EXPECT_EQ(first.saved().entry(0), PaletteEntry{});
  // The other one still has the colors that it read.
  EXPECT_EQ(second.saved(), brightPalette(4));
  EXPECT_EQ(first.saved().entry(0), PaletteEntry{});
  second.close();
  first.close();
}

}  // namespace
}  // namespace quillhue
