#include "ui/support/menus.h"

// Needs windows.h before it.
#include <tlhelp32.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "ui/probe/menu_report.h"
#include "ui/support/input.h"
#include "ui/support/windows.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kProbe = L"menu_probe.dll";
constexpr const wchar_t* kMenuClass = L"#32768";

// Calls a function of the program in a thread of its own there.
void callThere(const Program& program, LPTHREAD_START_ROUTINE function, LPARAM argument) {
  HANDLE thread =
      CreateRemoteThread(program.process(), nullptr, 0, function, reinterpret_cast<void*>(argument), 0, nullptr);
  if (thread == nullptr || WaitForSingleObject(thread, 10'000) != WAIT_OBJECT_0) {
    throw ProgramError("can't run a thread in the program; " + program.description());
  }
  CloseHandle(thread);
}

// Where a library begins in the program; null when it is not loaded there.
std::byte* libraryThere(const Program& program, const std::wstring& name) {
  HANDLE modules = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, program.processId());
  MODULEENTRY32W module{};
  module.dwSize = sizeof(module);
  std::byte* found = nullptr;
  for (BOOL more = Module32FirstW(modules, &module); more != 0; more = Module32NextW(modules, &module)) {
    if (lstrcmpiW(module.szModule, name.c_str()) == 0) {
      found = reinterpret_cast<std::byte*>(module.modBaseAddr);
    }
  }
  CloseHandle(modules);
  return found;
}

template <typename Function>
Function asFunction(std::byte* address) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(address));
}

// The same function in the program as in this process, which may have loaded its library elsewhere.
LPTHREAD_START_ROUTINE functionThere(const Program& program, const wchar_t* library, const char* name) {
  HMODULE here = GetModuleHandleW(library);
  auto* const function = reinterpret_cast<std::byte*>(reinterpret_cast<void*>(GetProcAddress(here, name)));
  return asFunction<LPTHREAD_START_ROUTINE>(libraryThere(program, library) +
                                            (function - reinterpret_cast<std::byte*>(here)));
}

void loadProbe(const Program& program) {
  if (libraryThere(program, kProbe) != nullptr) {
    return;
  }
  std::wstring file(MAX_PATH, L'\0');
  file.resize(GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
  file = std::filesystem::path(file).replace_filename(kProbe).wstring();
  if (LoadLibraryW(file.c_str()) == nullptr) {
    throw ProgramError("can't load " + narrow(file));
  }
  ProgramMemory name(program, (file.size() + 1) * sizeof(wchar_t));
  name.write(file.c_str(), (file.size() + 1) * sizeof(wchar_t));
  callThere(program, functionThere(program, L"kernel32.dll", "LoadLibraryW"), name.address());
}

std::vector<MenuItemState> itemsOf(const Program& program, HMENU menu) {
  loadProbe(program);
  ProgramMemory memory(program, sizeof(MenuReport));
  const auto report = std::make_unique<MenuReport>();
  report->menu = menu;
  report->window = program.window();
  memory.write(report.get(), sizeof(MenuReport));
  callThere(program, functionThere(program, kProbe, "reportMenu"), memory.address());
  memory.read(report.get(), sizeof(MenuReport));
  std::vector<MenuItemState> items;
  for (int i = 0; i < report->count; ++i) {
    const MenuReport::Item& item = report->items[i];
    const bool isSeparator = (item.type & MFT_SEPARATOR) != 0;
    items.push_back({.command = isSeparator ? 0 : static_cast<std::int32_t>(item.command),
                     .text = item.text,
                     .depth = item.depth,
                     .isSeparator = isSeparator,
                     .isEnabled = (item.state & MFS_GRAYED) == 0,
                     .isChecked = (item.state & MFS_CHECKED) != 0});
  }
  return items;
}

HWND menuWindow(const Program& program) {
  for (HWND window : program.topWindows()) {
    if (windowClass(window) == kMenuClass) {
      return window;
    }
  }
  return nullptr;
}

}  // namespace

std::vector<MenuItemState> menuBar(const Program& program) { return itemsOf(program, nullptr); }

MenuItemState menuBarItem(const Program& program, std::int32_t command) {
  const auto items = menuBar(program);
  const auto found = std::ranges::find(items, command, &MenuItemState::command);
  if (found == items.end()) {
    throw ProgramError("no menu item for command " + std::to_string(command));
  }
  return *found;
}

bool isOffered(const Program& program, std::int32_t command) { return menuBarItem(program, command).isEnabled; }

std::vector<MenuItemState> openMenu(const Program& program) {
  HWND window = program.await("a context menu", [&] { return menuWindow(program); });
  return itemsOf(program, reinterpret_cast<HMENU>(program.ask(window, MN_GETHMENU)));
}

bool showsMenu(const Program& program) { return menuWindow(program) != nullptr; }

void closeMenu(const Program& program) {
  pressKey(VK_ESCAPE);
  program.await("the context menu to close", [&] { return !showsMenu(program); });
}

}  // namespace quillhue
