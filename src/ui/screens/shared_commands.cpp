#include "ui/screens/shared_commands.h"

#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <utility>

#include "core/generators.h"
#include "core/new_palette.h"
#include "core/system_palettes.h"
#include "formats/failure.h"
#include "ui/dialogs/about_dialog.h"
#include "ui/dialogs/new_palette_dialog.h"
#include "ui/logic/command_ids.h"
#include "ui/main_window.h"

namespace quillhue {

namespace {

void install(MainWindow& window, Palette palette, bool initiallyModified) {
  window.slot().replaceDocument(std::move(palette), initiallyModified, {}, palette_format::kNone, window.services());
}

Palette makePalette(NewPaletteKind kind, const NewPaletteFields& fields, PaletteEntry blank) {
  switch (kind) {
    case NewPaletteKind::sizeOnly:
      return createGreyscalePalette(fields.size);
    case NewPaletteKind::blank:
      return createBlankPalette(fields.size, fields.windowsColors, blank);
    case NewPaletteKind::rgb:
      return createRgbPalette(fields.size, fields.levels, fields.windowsColors, blank);
  }
  return createPalette(fields.size);
}

template <NewPaletteKind kind>
void newPalette(MainWindow& window) {
  if (!window.letsDocumentGo()) {
    return;
  }
  if (const auto fields = askNewPalette(window, kind)) {
    install(window, makePalette(kind, *fields, window.settings().blank), true);
  }
}

void newSystemPalette(MainWindow& window, std::int32_t command) {
  if (window.letsDocumentGo()) {
    install(window, createSystemPalette(command, window.services().screen), false);
  }
}

void openPalette(MainWindow& window) {
  if (!window.letsDocumentGo()) {
    return;
  }
  if (const auto name = window.workplace().fileDialogs.askOpenPalette()) {
    window.openFile(*name);
  }
}

void leave(MainWindow& window) { PostMessageW(window.handle(), WM_CLOSE, 0, 0); }

INT_PTR openByShell(HWND owner, const wchar_t* file, const wchar_t* arguments, const std::wstring& folder) {
  return reinterpret_cast<INT_PTR>(ShellExecuteW(owner, L"open", file, arguments, folder.c_str(), SW_SHOWNORMAL));
}

void showReadMe(MainWindow& window) {
  const std::wstring& folder = window.workplace().programFolder;
  INT_PTR result = openByShell(window.handle(), L"readme.txt", L"", folder);
  if (result == SE_ERR_NOASSOC) {
    result = openByShell(window.handle(), L"notepad.exe", L"readme.txt", folder);
  }
  // Up to 32 it is the number of an error.
  constexpr INT_PTR kLastError = 32;
  if (result <= kLastError) {
    window.services().messages.error(textOf(Failure::couldNotOpen));
  }
}

void showAbout(MainWindow& window) { showAboutDialog(window); }

struct Row {
  std::int32_t command;
  void (*run)(MainWindow& window);
};

constexpr auto kRows = std::to_array<Row>({
    {command_id::kNewBlank, newPalette<NewPaletteKind::blank>},
    {command_id::kNewGreyscale, newPalette<NewPaletteKind::sizeOnly>},
    {command_id::kNewRgb, newPalette<NewPaletteKind::rgb>},
    {command_id::kOpen, openPalette},
    {command_id::kExit, leave},
    {command_id::kReadMe, showReadMe},
    {command_id::kAbout, showAbout},
});

}  // namespace

bool runSharedCommand(MainWindow& window, std::int32_t command) {
  if (command >= command_id::kFirstSystemPalette && command <= command_id::kLastSystemPalette) {
    newSystemPalette(window, command);
    return true;
  }
  const auto found = std::ranges::find(kRows, command, &Row::command);
  if (found == kRows.end()) {
    return false;
  }
  found->run(window);
  return true;
}

}  // namespace quillhue
