#include <chrono>
#include <concepts>
#include <cstdlib>
#include <iostream>
#include <random>
#include <span>
#include <vector>

#include "commands/command_ids.h"
#include "commands/command_table.h"
#include "core/palette_format.h"
#include "core/utf8.h"
#include "support/bitmaps.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/resources.h"
#include "ui/support/ui_test.h"
#include "ui/win32/clipboard.h"
#include "ui/win32/logical_palette.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

// Returns the number in an environment variable, or `otherwise`.
unsigned setting(const char* name, unsigned otherwise) {
  const char* const given = std::getenv(name);
  return given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : otherwise;
}

/// Random actions: QUILLHUE_SOAK_ACTIONS of them, or for QUILLHUE_SOAK_SECONDS. The same QUILLHUE_SOAK_SEED gives the
/// same actions.
class Soak : public UiTest {
 protected:
  Soak() {
    const unsigned seed = setting("QUILLHUE_SOAK_SEED", 20'260'704U);
    std::cout << "QUILLHUE_SOAK_SEED=" << seed << '\n';
    random_.seed(seed);
  }

  // Returns a number from 0 to count - 1, the same with every standard library.
  int any(std::integral auto count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  template <typename Items>
  auto anyOf(const Items& items) {
    return std::data(items)[any(std::size(items))];
  }

  void act() {
    constexpr void (Soak::* kActs[])() = {
        &Soak::sendCommand,    &Soak::sendCommand, &Soak::pressSomeKey, &Soak::pressSomeKey,    &Soak::clickSomewhere,
        &Soak::clickSomewhere, &Soak::changeSize,  &Soak::chooseOrDrop, &Soak::pressSomeButton, &Soak::fillClipboard};
    (this->*anyOf(kActs))();
  }

  // Closes open menus, lists and dialogs by their buttons or Escape.
  void answerAll() {
    constexpr int kMost = 20;
    for (int i = 0; i < kMost; ++i) {
      // A dialog disables the window before it is visible. One of its controls may already show a menu.
      HWND dialog = nullptr;
      editor().await("a dialog, a menu or the window", [&] {
        dialog = editor().topWindow(kDialogClass);
        return dialog != nullptr || showsMenu(editor()) || IsWindowEnabled(editor().window()) != 0;
      });
      if (showsMenu(editor())) {
        if (HWND owner = menuOwnerOf(editor()); owner != nullptr) {
          PostMessageW(owner, WM_CANCELMODE, 0, 0);
        }
      } else if (dialog == nullptr) {
        return;
      }
      if (dialog != nullptr) {
        answer(dialog);
      }
      editor().awaitInput();
    }
    throw ProgramError("dialogs don't end; " + editor().description());
  }

  // Undo restores the previous palette, and redo the changed one.
  void checkHistory() {
    // A dialog may still be opening.
    editor().awaitInput();
    answerAll();
    editor().ask(tabControl(editor()), TCM_SETCURFOCUS, kEffectsPage);
    const std::string before = saveTo("before");
    editor().run(command_id::kInvertSelection);
    editor().run(command_id::kSwapRedGreen);
    editor().run(command_id::kClear);
    const std::string after = saveTo("after");
    const auto expectAfter = [&](std::int32_t command, const std::string& expected) {
      for (int i = 0; i < 3; ++i) {
        editor().run(command);
      }
      EXPECT_EQ(saveTo("moved"), expected) << command;
    };
    expectAfter(command_id::kUndo, before);
    expectAfter(command_id::kRedo, after);
    expectAfter(command_id::kUndo, before);
  }

  // Under Wine each of the system's file dialogs leaves a window and a handle behind.
  void expectNoLeakSince(ResourceCount before, int fileDialogsBefore) const {
    const int left = isWine() ? fileDialogs_ - fileDialogsBefore : 0;
    before.user += left;
    before.kernel += left;
    expectNoLeak(editor(), before, 40);
  }
  [[nodiscard]] int fileDialogs() const { return fileDialogs_; }

  std::string saveTo(const std::string& name) {
    DeleteFileW(folder_.name(name).c_str());
    ++fileDialogs_;
    editor().start(command_id::kSaveAs);
    chooseFile(editor(), L"Save As", folder_.name(name), palette_format::kGimp - 1);
    editor().awaitTitle(L"Quillhue - " + fromUtf8(name));
    return folder_.contentOf(name);
  }

 private:
  void sendCommand() {
    const std::int32_t id = anyOf(commands()).id;
    if (id != command_id::kExit && id != command_id::kReadMe) {
      editor().start(id);
    }
  }

  void pressSomeKey() {
    constexpr int kKeys[] = {VK_TAB,   VK_SPACE, VK_RETURN, VK_LEFT,   VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END,
                             VK_PRIOR, VK_NEXT,  VK_APPS,   VK_DELETE, '1',      '2',   '9',     VK_BACK, VK_TAB};
    constexpr int kLetters[] = {'Z', 'Y', 'X', 'C', 'V', 'A', 'I', 'R'};
    activate(editor());
    if (any(3) == 0) {
      pressKey(anyOf(kLetters), {VK_CONTROL});
    } else if (any(4) == 0) {
      pressKey(anyOf(kKeys), {VK_SHIFT});
    } else {
      pressKey(anyOf(kKeys));
    }
  }

  Point somewhere() {
    const Size size = clientSize(editor().window());
    return onScreen(editor().window(), {any(size.width), any(size.height)});
  }

  void clickSomewhere() {
    // The compiler chooses the order in which arguments are evaluated.
    const Point from = somewhere();
    const Point to = somewhere();
    switch (any(4)) {
      case 0:
        return clickAt(editor(), from, Button::right);
      case 1:
        activate(editor());
        moveTo(editor(), from);
        return turnWheel(any(7) - 3);
      case 2:
        return clickAt(editor(), from);
      default:
        return editor().drag({from, to});
    }
  }

  void changeSize() { editor().resize({436 + any(700), 376 + any(500)}); }

  // Drops a file, changes the page, or chooses an item of the visible list.
  void chooseOrDrop() {
    // Input that is still waiting may hide the list again.
    HWND list = findControl(editor().window(), L"ComboBox");
    if (any(3) == 0) {
      editor().drop({anyOf(files_)});
    } else if (list == nullptr || any(2) == 0) {
      editor().ask(tabControl(editor()), TCM_SETCURFOCUS, static_cast<WPARAM>(any(3)));
    } else {
      editor().choose(list, static_cast<std::size_t>(any(9)));
    }
  }

  void pressSomeButton() {
    std::vector<HWND> buttons = findControls(editor().window(), L"Button");
    std::erase_if(buttons, [](HWND button) { return IsWindowEnabled(button) == 0; });
    if (!buttons.empty()) {
      editor().post(anyOf(buttons), BM_CLICK);
    }
  }

  // Pastes what another program may have put on the clipboard: bitmaps of all depths, also short ones, palettes, text,
  // or nothing.
  void fillClipboard() {
    const int content = any(8);
    {
      ClipboardAccess clipboard(editor().window());
      clipboard.empty();
      constexpr std::uint8_t kDepths[] = {1, 4, 8, 16, 24, 32};
      Bytes bitmap = bitmapOf(3, 24, {1, 2, 3, 4, 5, 6});
      bitmap[28] = anyOf(kDepths);
      const auto block = std::span(bitmap).subspan(14, 20 + static_cast<std::size_t>(any(bitmap.size() - 33)));
      if (content < 5) {
        static_cast<void>(clipboard.put(content == 4 ? CF_TEXT : CF_DIB, block));
      } else if (content < 7) {
        static_cast<void>(clipboard.put(createLogicalPalette(entriesOf(brightPalette(1 + any(300))))));
      }
    }
    editor().start(command_id::kPaste);
  }

  void answer(HWND dialog) {
    const auto has = [&](int id) { return GetDlgItem(dialog, id) != nullptr; };
    HWND field = fileNameField(dialog);
    fileDialogs_ += field != nullptr ? 1 : 0;
    if (field != nullptr && any(2) == 0) {
      editor().ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(anyOf(files_).c_str()));
      editor().post(dialog, WM_COMMAND, IDOK);
      return;
    }
    const bool isSystems = findControl(dialog, L"ComboBox") != nullptr;
    int button = IDCANCEL;
    if (has(IDNO)) {
      button = any(2) == 0 ? IDYES : IDNO;
    } else if (!isSystems && has(IDOK) && (!has(IDCANCEL) || any(2) == 0)) {
      button = IDOK;
    } else if (has(FROM_IMAGE_REDUCE) && any(2) == 0) {
      button = FROM_IMAGE_REDUCE;
    }
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    editor().await("the dialog's answer", [&] { return editor().topWindow(kDialogClass) != dialog; });
  }

  std::mt19937 random_;
  int fileDialogs_ = 0;
  const std::vector<std::wstring> files_{
      paletteFile("one.pal", brightPalette(1)),
      paletteFile("some.pal", brightPalette(37)),
      paletteFile("many.pal", brightPalette(1024)),
      folder_.file("unknown.xyz", bytesOf("nothing")),
      folder_.file("image.bmp", bitmapOf(2, 24, {1, 2, 3, 4})),
      folder_.file("large.bmp", bitmapOf(300, 32, std::vector<ColorWord>(60'000, 0x123456)))};
};

TEST_F(Soak, EndsWithADocumentThatCanBeSaved) {
  const Editor& editor = open(brightPalette(16));
  const double mostActions = setting("QUILLHUE_SOAK_ACTIONS", 0);
  const double mostSeconds = setting("QUILLHUE_SOAK_SECONDS", 60);
  const auto start = std::chrono::steady_clock::now();
  ResourceCount before;
  int fileDialogsBefore = 0;
  int actions = 0;
  const auto share = [&] {
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return mostActions > 0 ? actions / mostActions : time.count() / mostSeconds;
  };
  bool isCounted = false;
  // Until then the system's own use of memory and handles grows.
  constexpr int kWarmUp = 200;
  for (; share() < 1; ++actions) {
    SCOPED_TRACE("action " + std::to_string(actions));
    if (!isCounted && share() >= 0.2 && actions >= kWarmUp) {
      before = countResources(editor);
      fileDialogsBefore = fileDialogs();
      isCounted = true;
    }
    act();
    editor.awaitInput();
    answerAll();
    if (actions % 500 == 499) {
      checkHistory();
      const ResourceCount now = countResources(editor);
      std::cout << actions + 1 << " actions, " << now.gdi << " GDI, " << now.user << " user and " << now.kernel
                << " kernel objects, " << now.memory << " MB" << std::endl;
      if (isCounted) {
        expectNoLeakSince(before, fileDialogsBefore);
      }
      ASSERT_FALSE(HasFailure());
    }
  }
  std::cout << actions << " actions\n";
  if (isCounted) {
    expectNoLeakSince(before, fileDialogsBefore);
  }
  const std::string saved = saveTo("saved");
  editor.drop({folder_.name("saved")});
  editor.awaitTitle(L"Quillhue - saved");
  EXPECT_EQ(saveTo("again"), saved);
  editor.close();
}

}  // namespace
}  // namespace quillhue
