#include "ui/support/editor.h"

#include <utility>

#include "commands/command_ids.h"
#include "formats/files.h"
#include "formats/readers/palette_readers.h"
#include "ui/support/input.h"
#include "ui/support/windows.h"
#include "ui/win32/system.h"

namespace quillhue {

Editor::Editor(std::wstring file, int page) : Program({file}), file_(std::move(file)) {
  await("the editor", [this] { return tabControl(*this); });
  if (page != kValuesPage) {
    choosePage(page);
  }
}

Palette Editor::saved() const {
  run(command_id::kSave);
  return paletteIn(file_);
}

int Editor::chosenPage() const { return static_cast<int>(ask(tabControl(*this), TCM_GETCURSEL)); }

void Editor::choosePage(int page) const {
  HWND tabs = tabControl(*this);
  RECT tab{};
  askAbout(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(page), tab);
  clickAt(*this, onScreen(tabs, middleOf(fromSystem(tab))));
  await("page " + std::to_string(page), [&] { return chosenPage() == page; });
}

Rect Editor::page() const {
  const Rect frame = boxInParent(tabControl(*this));
  RECT area{frame.left, frame.top, frame.right, frame.bottom};
  askAbout(tabControl(*this), TCM_ADJUSTRECT, FALSE, area);
  return fromSystem(area);
}

GridLayout Editor::grid() const { return {page(), std::stoi(statusText(*this)), Scale{screenDpi()}}; }

Point Editor::entryPoint(std::int32_t index) const { return onScreen(gridWindow(), middleOf(grid().cellBox(index))); }

void Editor::typeInto(HWND field, std::string_view text) const {
  tabTo(*this, field);
  ask(field, EM_SETSEL, 0, -1);
  type(text);
  await("the typed text", [&] { return narrow(textOf(field)) == text; });
  awaitInput();
}

void Editor::choose(HWND list, std::size_t item) const {
  ask(list, CB_SETCURSEL, item);
  ask(window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

Palette paletteIn(const std::wstring& file) {
  const auto source = openFile(file);
  if (!source) {
    throw ProgramError("can't open " + narrow(file));
  }
  const auto result = readPalette({.source = **source, .name = file});
  if (!result) {
    throw ProgramError("can't read " + narrow(file));
  }
  return std::get<FilePalette>(*result).palette;
}

}  // namespace quillhue
