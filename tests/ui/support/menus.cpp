#include "ui/support/menus.h"

#include <algorithm>
#include <memory>

#include "ui/support/input.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kMenuClass = L"#32768";

// The probe answers from within the program.
std::vector<MenuReport::Item> itemsOf(const Program& program, HMENU menu) {
  HMODULE probe = LoadLibraryW(L"menu_probe.dll");
  auto* const function = reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(probe, "reportMenu")));
  HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, function, probe, program.threadId());
  const auto report = std::make_unique<MenuReport>();
  report->menu = menu;
  program.askAbout(program.window(), RegisterWindowMessageW(kMenuReportMessage), 0, *report);
  UnhookWindowsHookEx(hook);
  FreeLibrary(probe);
  if (report->count == 0) {
    throw ProgramError("can't look into the program's menus");
  }
  return {report->items, report->items + report->count};
}

}  // namespace

std::vector<MenuReport::Item> menuBar(const Program& program) { return itemsOf(program, nullptr); }

MenuReport::Item menuBarItem(const Program& program, std::int32_t command) {
  const auto items = menuBar(program);
  const auto found = std::ranges::find(items, command, &MenuReport::Item::command);
  if (found == items.end()) {
    throw ProgramError("no menu item for command " + std::to_string(command));
  }
  return *found;
}

bool isOffered(const Program& program, std::int32_t command) { return menuBarItem(program, command).isEnabled; }

std::vector<MenuReport::Item> openMenu(const Program& program) {
  HWND window = program.await("a context menu", [&] { return program.topWindow(kMenuClass); });
  return itemsOf(program, reinterpret_cast<HMENU>(program.ask(window, MN_GETHMENU)));
}

bool showsMenu(const Program& program) { return program.topWindow(kMenuClass) != nullptr; }

HWND menuOwnerOf(const Program& program) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(program.threadId(), &info);
  return info.hwndMenuOwner;
}

void closeMenu(const Program& program, int key) {
  pressKey(key);
  program.await("the context menu to close", [&] { return !showsMenu(program); });
}

}  // namespace quillhue
