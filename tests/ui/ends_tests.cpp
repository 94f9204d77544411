#include <string>
#include <string_view>
#include <utility>

#include "commands/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/ui_test.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

class Ends : public UiTest {};

// A file that ends only when the test says so: a pipe that the editor reads.
class SlowFile {
 public:
  explicit SlowFile(const Program& reader) : reader_(reader) {}
  SlowFile(const SlowFile&) = delete;
  SlowFile& operator=(const SlowFile&) = delete;
  ~SlowFile() { finish(""); }

  [[nodiscard]] const std::wstring& name() const { return name_; }
  void awaitReader() const {
    reader_.await("the file to be opened",
                  [&] { return ConnectNamedPipe(pipe_, nullptr) != 0 || GetLastError() == ERROR_PIPE_CONNECTED; });
  }
  void finish(std::string_view content) {
    DWORD written = 0;
    EXPECT_TRUE(pipe_ == INVALID_HANDLE_VALUE || content.empty() ||
                WriteFile(pipe_, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) != 0);
    CloseHandle(std::exchange(pipe_, INVALID_HANDLE_VALUE));
  }

 private:
  const Program& reader_;
  std::wstring name_ = LR"(\\.\pipe\quillhue-)" + std::to_wstring(GetCurrentProcessId());
  HANDLE pipe_ =
      CreateNamedPipeW(name_.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE | PIPE_NOWAIT, 1, 4096, 4096, 0, nullptr);
};

TEST_F(Ends, AWindowClosedWhileAFileIsOpenedWaitsForTheFile) {
  const Editor& editor = open(brightPalette(4), kEffectsPage);
  SlowFile file(editor);
  editor.drop({file.name()});
  file.awaitReader();
  editor.start(command_id::kSelectAll);
  editor.start(command_id::kClear);
  editor.post(editor.window(), WM_CLOSE);
  EXPECT_EQ(WaitForSingleObject(editor.process(), 300), DWORD{WAIT_TIMEOUT});
  file.finish("JASC-PAL\r\n0100\r\n2\r\n1 2 3\r\n4 5 6\r\n");
  // The file is complete, and its palette was cleared before the window closes.
  EXPECT_EQ(answerMessage(editor, L"Warning", IDNO), L"Do you want to save the current palette?");
  EXPECT_EQ(editor.awaitEnd(), 0U);
}

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

// The first program is killed after it copied. The second one goes on.
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
