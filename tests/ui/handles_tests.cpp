#include "commands/command_ids.h"
#include "ui/support/resources.h"
#include "ui/support/ui_test.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

class Handles : public UiTest {};

TEST_F(Handles, DoNotLeak) {
  const Editor& editor = open(brightPalette(3));
  const std::wstring large = paletteFile("large.pal", brightPalette(200));
  // Repeats typical actions of a user: replaces documents, resizes the window, changes tabs.
  const auto work = [&](int rounds) {
    for (int i = 0; i < rounds; ++i) {
      editor.run(command_id::kFirstSystemPalette + i % 9);
      editor.drop({i % 2 == 0 ? editor.file() : large});
      editor.awaitTitle(i % 2 == 0 ? L"Quillhue - own.pal" : L"Quillhue - large.pal");
      editor.resize({500 + i % 7 * 60, 450 + i % 5 * 50});
      for (const int page : {kEffectsPage, kUsePage, kValuesPage}) {
        editor.ask(tabControl(editor), TCM_SETCURFOCUS, static_cast<WPARAM>(page));
        if (page != kUsePage) {
          editor.run(command_id::kSelectAll);
          editor.run(command_id::kCopy);
          editor.run(command_id::kPaste);
        }
        RedrawWindow(editor.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
      }
      for (const std::int32_t command : {command_id::kClear, command_id::kUndo, command_id::kRedo, command_id::kSave}) {
        editor.run(command);
      }
    }
  };
  work(6);
  const ResourceCount before = countResources(editor);
  work(26);
  // The system keeps some fonts, brushes and threads for itself; a leak grows with every round.
  expectNoLeak(editor, before, 12);
}

}  // namespace
}  // namespace quillhue
