#include "ui/support/editor.h"

// Needs windows.h before it.
#include <commctrl.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "ui/logic/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"

namespace quillhue {

namespace {

// The clipboard, as soon as no other program has it.
class OpenClipboardHere {
 public:
  OpenClipboardHere() {
    constexpr int kTries = 500;
    constexpr DWORD kPause = 5;
    for (int i = 0; OpenClipboard(nullptr) == 0; ++i) {
      if (i == kTries) {
        throw ProgramError("the clipboard is taken");
      }
      Sleep(kPause);
    }
  }
  OpenClipboardHere(const OpenClipboardHere&) = delete;
  OpenClipboardHere& operator=(const OpenClipboardHere&) = delete;
  ~OpenClipboardHere() { CloseClipboard(); }
};

void put(UINT format, HANDLE data) {
  const OpenClipboardHere open;
  EmptyClipboard();
  if (data != nullptr && SetClipboardData(format, data) == nullptr) {
    throw ProgramError("the clipboard refuses");
  }
}

}  // namespace

Editor::Editor(const std::wstring& file, int page) : Program({file}), palette_(file) {
  await("the editor", [this] { return tabControl(*this); });
  if (page != kValuesPage) {
    choosePage(*this, page);
  }
}

int Editor::undoAll() const {
  int steps = 0;
  for (; isOffered(*this, command_id::kUndo); ++steps) {
    run(command_id::kUndo);
  }
  return steps;
}

void Editor::awaitInput() const {
  HWND statusBar = findControl(window(), STATUSCLASSNAMEW);
  InvalidateRect(statusBar, nullptr, FALSE);
  await("the input to be taken", [&] { return GetUpdateRect(statusBar, nullptr, FALSE) == 0; });
}

Rect Editor::page() const {
  const Rect frame = boxInParent(tabControl(*this));
  RECT area{frame.left, frame.top, frame.right, frame.bottom};
  ProgramMemory memory(*this, sizeof(area));
  memory.write(&area, sizeof(area));
  ask(tabControl(*this), TCM_ADJUSTRECT, FALSE, memory.address());
  memory.read(&area, sizeof(area));
  return {area.left, area.top, area.right, area.bottom};
}

GridLayout Editor::grid() const { return {page(), std::stoi(statusText(*this, 0)), screenScale()}; }

HWND Editor::gridWindow() const { return control(L"QuillhueGrid"); }

Point Editor::entryPoint(std::int32_t index) const {
  const Rect cell = grid().cellBox(index);
  return onScreen(gridWindow(), {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
}

void Editor::clickEntry(std::int32_t index) const {
  clickAt(*this, entryPoint(index));
  awaitInput();
}

PaletteEntry Editor::shownColor(std::int32_t index) const {
  const Rect cell = grid().cellBox(index);
  return pixelOf(gridWindow(), {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2});
}

void Editor::awaitShownColor(std::int32_t index, PaletteEntry color) const {
  await("the color of entry " + std::to_string(index), [&] { return shownColor(index) == color; });
}

void Editor::awaitShown(const Palette& palette) const {
  const GridLayout layout = grid();
  HWND window = gridWindow();
  await("the colors " + show(palette), [&] {
    for (std::int32_t i = 0; i < palette.getSize(); ++i) {
      const Rect cell = layout.cellBox(i);
      if (pixelOf(window, {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2}) != palette.entry(i)) {
        return false;
      }
    }
    return true;
  });
}

HWND Editor::control(const wchar_t* className, const wchar_t* text) const {
  return await("the control " + narrow(text == nullptr ? className : text),
               [&] { return findControl(window(), className, text); });
}

void Editor::click(HWND control) const {
  clickAt(*this, middleOf(control));
  awaitInput();
}

void Editor::drag(std::initializer_list<Point> points) const {
  activate(*this);
  moveTo(*this, *points.begin());
  press();
  for (const Point& point : points) {
    moveTo(*this, point);
    awaitInput();
  }
  release();
  awaitInput();
}

void Editor::awaitText(HWND control, const std::wstring& text) const {
  await("the text \"" + narrow(text) + "\" instead of \"" + narrow(textOf(control)) + '"',
        [&] { return textOf(control) == text; });
}

void Editor::typeInto(HWND field, std::string_view text) const {
  focus(field);
  ask(field, EM_SETSEL, 0, -1);
  // The Delete key is the window's.
  text.empty() ? pressKey(VK_BACK) : type(text);
  awaitInput();
}

void Editor::focus(HWND control) const { tabTo(*this, control); }

void Editor::choose(HWND list, int item) const {
  ask(list, CB_SETCURSEL, static_cast<WPARAM>(item));
  ask(window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

Point middleOf(HWND window) {
  const Rect box = boxOnScreen(window);
  return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

std::vector<PaletteEntry> clipboardPalette() {
  const OpenClipboardHere open;
  std::vector<PaletteEntry> colors;
  if (auto* const palette = static_cast<HPALETTE>(GetClipboardData(CF_PALETTE))) {
    std::vector<PALETTEENTRY> entries(GetPaletteEntries(palette, 0, 0, nullptr));
    GetPaletteEntries(palette, 0, static_cast<UINT>(entries.size()), entries.data());
    for (const PALETTEENTRY& entry : entries) {
      colors.push_back({entry.peRed, entry.peGreen, entry.peBlue});
    }
  }
  return colors;
}

std::string clipboardBitmap() {
  const OpenClipboardHere open;
  HANDLE memory = GetClipboardData(CF_DIB);
  if (memory == nullptr) {
    return {};
  }
  const std::string bytes(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
  GlobalUnlock(memory);
  return bytes;
}

void putOnClipboard(const std::vector<PaletteEntry>& colors) {
  struct Description {
    WORD version = 0x300;
    WORD count = 0;
    PALETTEENTRY entries[256]{};
  } description;
  description.count = static_cast<WORD>(colors.size());
  std::ranges::transform(colors, description.entries,
                         [](const PaletteEntry& color) { return PALETTEENTRY{color.red, color.green, color.blue, 0}; });
  put(CF_PALETTE, CreatePalette(reinterpret_cast<const LOGPALETTE*>(&description)));
}

void putOnClipboard(std::string_view bitmap) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bitmap.size());
  std::memcpy(GlobalLock(memory), bitmap.data(), bitmap.size());
  GlobalUnlock(memory);
  put(CF_DIB, memory);
}

void emptyClipboard() { put(0, nullptr); }

void runTool(const std::vector<std::wstring>& arguments) {
  std::wstring line = L"\"";
  line += std::filesystem::path(Program::file()).replace_filename(L"quillhue-cli.exe").wstring() + L'"';
  for (const std::wstring& argument : arguments) {
    line += L" \"" + argument + L'"';
  }
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION made{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made) == 0) {
    throw ProgramError("can't start " + narrow(line));
  }
  WaitForSingleObject(made.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(made.hProcess, &code);
  CloseHandle(made.hProcess);
  CloseHandle(made.hThread);
  if (code != 0) {
    throw ProgramError(narrow(line) + " ended with " + std::to_string(code));
  }
}

}  // namespace quillhue
