#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include "ui/logic/command_ids.h"
#include "ui/support/drop.h"
#include "ui/support/input.h"
#include "ui/support/resources.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Handles : public UiTest {};

TEST_F(Handles, DoNotLeak) {
  const std::wstring files[] = {paletteFile("small.pal", brightPalette(3)),
                                paletteFile("large.pal", brightPalette(200))};
  Program program({files[0]});
  HWND window = program.window();
  HWND tabs = program.await("the editor", [&] { return tabControl(program); });
  // One round of what a user does; a document is replaced, resized windows repaint, tabs change.
  const auto work = [&](int rounds) {
    for (int i = 0; i < rounds; ++i) {
      program.run(command_id::kFirstSystemPalette + i % 9);
      dropFiles(program, {files[i % 2]});
      program.awaitTitle(i % 2 == 0 ? L"Quillhue - small.pal" : L"Quillhue - large.pal");
      SetWindowPos(window, nullptr, 0, 0, 500 + i % 7 * 60, 450 + i % 5 * 50, SWP_NOMOVE | SWP_NOZORDER);
      for (const int page : {1, 2, 0}) {
        program.ask(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page));
        if (page != 2) {
          program.run(command_id::kSelectAll);
          program.run(command_id::kCopy);
          program.run(command_id::kPaste);
        }
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
      }
      for (const std::int32_t command : {command_id::kClear, command_id::kUndo, command_id::kRedo, command_id::kSave}) {
        program.run(command);
      }
    }
  };
  work(12);
  const ResourceCount before = countResources(program);
  work(70);
  const ResourceCount after = countResources(program);
  // The system keeps some fonts, brushes and threads for itself; a leak grows with every round.
  constexpr int kSlack = 12;
  EXPECT_LE(after.gdi, before.gdi + kSlack) << testing::PrintToString(before);
  EXPECT_LE(after.user, before.user + kSlack) << testing::PrintToString(before);
  EXPECT_LE(after.kernel, before.kernel + kSlack) << testing::PrintToString(before);
}

}  // namespace
}  // namespace quillhue
