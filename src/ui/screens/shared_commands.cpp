#include "ui/screens/shared_commands.h"

#include <string>
#include <utility>

#include "core/system_palettes.h"
#include "formats/failure.h"
#include "ui/dialogs/about_dialog.h"
#include "ui/dialogs/new_palette_dialog.h"
#include "ui/services/file_dialogs.h"
#include "ui/win32/system.h"
#include "ui/window_context.h"

namespace quillhue {

namespace {

INT_PTR openByShell(HWND owner, const wchar_t* file, const wchar_t* arguments, const std::wstring& folder) {
  return reinterpret_cast<INT_PTR>(ShellExecuteW(owner, L"open", file, arguments, folder.c_str(), SW_SHOWNORMAL));
}

}  // namespace

void SharedCommands::openUntitled(Palette palette, bool initiallyModified) {
  context_.slot.replaceDocument({.palette = std::move(palette), .isModified = initiallyModified}, context_.services);
}

void SharedCommands::newPalette(NewPaletteKind kind) {
  if (!context_.frame.confirmDiscard()) {
    return;
  }
  const auto fields =
      askNewPalette(context_.windowServices.dialogOwner, context_.settings(), context_.services.messages, kind);
  if (fields) {
    openUntitled(createNewPalette(kind, *fields, context_.settings().blank), true);
  }
}

void SharedCommands::newSystemPalette(std::int32_t command) {
  if (context_.frame.confirmDiscard()) {
    openUntitled(createSystemPalette(command, context_.services.screen), false);
  }
}

void SharedCommands::openPalette() {
  if (!context_.frame.confirmDiscard()) {
    return;
  }
  if (const auto name = context_.windowServices.fileDialogs.askOpenPalette()) {
    context_.frame.openFile(*name);
  }
}

void SharedCommands::exit() { PostMessageW(context_.window, WM_CLOSE, 0, 0); }

void SharedCommands::showReadMe() {
  const std::wstring& folder = context_.windowServices.programFolder;
  INT_PTR result = openByShell(context_.window, L"readme.txt", L"", folder);
  if (result == SE_ERR_NOASSOC) {
    result = openByShell(context_.window, L"notepad.exe", L"readme.txt", folder);
  }
  // Results up to 32 are errors.
  constexpr INT_PTR kLastError = 32;
  if (result <= kLastError) {
    context_.services.messages.error(textOf(Failure::couldNotOpen));
  }
}

void SharedCommands::showAbout() { showAboutDialog(context_.windowServices.dialogOwner); }

}  // namespace quillhue
