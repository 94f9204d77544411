#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include <cstdlib>
#include <iostream>
#include <random>

#include "core/palette_format.h"
#include "support/bitmaps.h"
#include "ui/logic/command_ids.h"
#include "ui/logic/command_table.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/drop.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/resources.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

constexpr int kActions = 2000;
// The field for red in the system's color chooser.
constexpr int kColorRed = 706;

/// Does what comes to mind: always the same for the same seed, which QUILLHUE_SOAK_SEED may give.
class Soak : public UiTest {
 protected:
  Soak() {
    const char* const given = std::getenv("QUILLHUE_SOAK_SEED");
    const unsigned seed = given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 20'260'704U;
    std::cout << "QUILLHUE_SOAK_SEED=" << seed << '\n';
    random_.seed(seed);
    files_ = {paletteFile("one.pal", brightPalette(1)), paletteFile("some.pal", brightPalette(37)),
              paletteFile("many.pal", brightPalette(1024)), folder_.file("unknown.xyz", bytesOf("nothing")),
              folder_.file("image.bmp", bitmapOf(2, 24, {1, 2, 3, 4}))};
  }

  // 0 .. count - 1, the same with every library.
  int any(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  void act(const Program& program) {
    switch (any(8)) {
      case 0:
      case 1:
        return sendCommand(program);
      case 2:
      case 3:
        return pressSomeKey(program);
      case 4:
      case 5:
        return clickSomewhere(program);
      case 6:
        return changeSize(program);
      default:
        return any(3) == 0
                   ? dropFiles(program, {files_[static_cast<std::size_t>(any(static_cast<int>(files_.size())))]})
                   : choose(program);
    }
  }

  // Closes what is open, by its buttons or by Escape. True when there was something.
  bool answerAll(const Program& program) {
    bool answered = false;
    for (int i = 0; i < 20; ++i) {
      if (showsMenu(program)) {
        program.post(program.window(), WM_CANCELMODE);
        answered = true;
      }
      HWND dialog = openDialog(program);
      if (dialog == nullptr && !showsMenu(program)) {
        return answered;
      }
      if (dialog != nullptr) {
        answer(program, dialog);
        answered = true;
      }
      program.ask(program.window(), WM_NULL);
    }
    throw ProgramError("dialogs don't end; " + program.description());
  }

 private:
  void sendCommand(const Program& program) {
    const auto all = commands();
    const std::int32_t id = all[static_cast<std::size_t>(any(static_cast<int>(all.size())))].id;
    if (id != command_id::kExit && id != command_id::kReadMe) {
      program.start(id);
    }
  }

  void pressSomeKey(const Program& program) {
    constexpr int kKeys[] = {VK_TAB,   VK_SPACE, VK_RETURN, VK_LEFT,   VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END,
                             VK_PRIOR, VK_NEXT,  VK_APPS,   VK_DELETE, '1',      '2',   '9',     VK_BACK, VK_TAB};
    constexpr int kLetters[] = {'Z', 'Y', 'X', 'C', 'V', 'A', 'I', 'R'};
    activate(program);
    if (any(3) == 0) {
      pressKey(kLetters[any(std::size(kLetters))], {VK_CONTROL});
    } else if (any(4) == 0) {
      pressKey(kKeys[any(std::size(kKeys))], {VK_SHIFT});
    } else {
      pressKey(kKeys[any(std::size(kKeys))]);
    }
  }

  void clickSomewhere(const Program& program) {
    const Size size = clientSizeOf(program.window());
    const auto somewhere = [&] { return onScreen(program.window(), {any(size.width), any(size.height)}); };
    // The order of a call's arguments is the compiler's.
    const Point from = somewhere();
    const Point to = somewhere();
    switch (any(4)) {
      case 0:
        return clickAt(program, from, Button::right);
      case 1:
        activate(program);
        moveTo(program, from);
        return turnWheel(any(7) - 3);
      case 2:
        return clickAt(program, from);
      default:
        return drag(program, {from, to});
    }
  }

  void changeSize(const Program& program) {
    const int width = 436 + any(700);
    const int height = 376 + any(500);
    SetWindowPos(program.window(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
  }

  // Another page, or an item of the list that is shown.
  void choose(const Program& program) {
    HWND list = findControl(program.window(), L"ComboBox");
    if (list == nullptr || any(2) == 0) {
      program.ask(tabControl(program), TCM_SETCURFOCUS, static_cast<WPARAM>(any(3)));
      return;
    }
    program.ask(list, CB_SETCURSEL, static_cast<WPARAM>(any(9)));
    program.ask(program.window(), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
  }

  static HWND openDialog(const Program& program) {
    for (HWND window : program.topWindows()) {
      if (windowClass(window) == L"#32770" && IsWindowEnabled(window) != 0) {
        return window;
      }
    }
    return nullptr;
  }

  void answer(const Program& program, HWND dialog) {
    // Of files and colors none is chosen, and nothing is saved.
    const bool isSystems = findControl(dialog, L"ComboBox") != nullptr || GetDlgItem(dialog, kColorRed) != nullptr;
    int button = IDCANCEL;
    if (GetDlgItem(dialog, IDNO) != nullptr) {
      button = IDNO;
    } else if (!isSystems && GetDlgItem(dialog, IDOK) != nullptr &&
               (GetDlgItem(dialog, IDCANCEL) == nullptr || any(2) == 0)) {
      button = IDOK;
    } else if (GetDlgItem(dialog, FROM_IMAGE_REDUCE) != nullptr && any(2) == 0) {
      button = FROM_IMAGE_REDUCE;
    }
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    program.await("the dialog's answer", [&] { return openDialog(program) != dialog; });
  }

  std::mt19937 random_;
  std::vector<std::wstring> files_;
};

TEST_F(Soak, EndsWithADocumentThatCanBeSaved) {
  Program program({paletteFile("start.pal", brightPalette(16))});
  program.await("the editor", [&] { return tabControl(program); });
  ResourceCount before;
  for (int i = 0; i < kActions; ++i) {
    SCOPED_TRACE("action " + std::to_string(i));
    if (i == kActions / 5) {
      before = countResources(program);
    }
    act(program);
    program.ask(program.window(), WM_NULL);
    answerAll(program);
  }
  const ResourceCount after = countResources(program);
  constexpr int kSlack = 40;
  EXPECT_LE(after.gdi, before.gdi + kSlack) << testing::PrintToString(before);
  EXPECT_LE(after.user, before.user + kSlack) << testing::PrintToString(before);
  EXPECT_LE(after.kernel, before.kernel + kSlack) << testing::PrintToString(before);

  const auto saveTo = [&](const char* name) {
    program.start(command_id::kSaveAs);
    chooseFile(program, L"Save As", folder_.name(name), palette_format::kGimp - 1);
    program.awaitTitle(L"Quillhue - " + std::wstring(name, name + std::string_view(name).size()));
    return folder_.contentOf(name);
  };
  const std::string saved = saveTo("saved");
  dropFiles(program, {folder_.name("saved")});
  program.awaitTitle(L"Quillhue - saved");
  EXPECT_EQ(saveTo("again"), saved);
  program.close();
}

}  // namespace
}  // namespace quillhue
