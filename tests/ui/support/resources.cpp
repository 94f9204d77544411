#include "ui/support/resources.h"

#include "ui/win32/system.h"
// Need windows.h before them.
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <vector>

namespace quillhue {

namespace {

// Wine's GetGuiResources and GetProcessHandleCount count nothing. These functions count the objects in other ways.

template <typename Function>
Function* systemFunction(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

// Counts the entries in the process's table of GDI objects. The environment block has a pointer to it.
int gdiObjectsInTable(HANDLE process) {
  struct Entry {
    std::uint64_t object;
    std::uint16_t owner, count, upper, type;
    std::uint64_t user;
  };
  constexpr std::size_t kEntries = 0x4000;
  constexpr std::size_t kTableOffset = 0xF8;
  PROCESS_BASIC_INFORMATION basics{};
  systemFunction<decltype(NtQueryInformationProcess)>("NtQueryInformationProcess")(process, ProcessBasicInformation,
                                                                                   &basics, sizeof(basics), nullptr);
  void* table = nullptr;
  std::vector<Entry> entries(kEntries);
  if (ReadProcessMemory(process, reinterpret_cast<std::byte*>(basics.PebBaseAddress) + kTableOffset,
                        static_cast<void*>(&table), sizeof(table), nullptr) == 0 ||
      ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr) == 0) {
    throw ProgramError("can't read the program's GDI objects");
  }
  return static_cast<int>(std::ranges::count_if(entries, [](const Entry& entry) { return entry.type != 0; }));
}

// Counts the used numbers in the range that all windows, menus and so on share.
int usedUserObjects() {
  constexpr int kAll = (0xFFEF - 0x20) / 2;
  std::vector<HMENU> taken;
  for (HMENU menu = CreateMenu(); menu != nullptr; menu = CreateMenu()) {
    taken.push_back(menu);
  }
  for (HMENU menu : taken) {
    DestroyMenu(menu);
  }
  return kAll - static_cast<int>(taken.size());
}

int kernelHandlesInList(DWORD processId) {
  struct Entry {
    ULONG_PTR object, processId, handle;
    ULONG access;
    USHORT trace, type;
    ULONG attributes, reserved;
  };
  struct List {
    ULONG_PTR count, reserved;
  };
  // SystemExtendedHandleInformation, which the header does not have.
  constexpr ULONG kExtendedHandles = 64;
  std::vector<std::byte> memory(std::size_t{1} << 20U);
  const auto query = systemFunction<NTSTATUS WINAPI(ULONG, void*, ULONG, ULONG*)>("NtQuerySystemInformation");
  if (query(kExtendedHandles, memory.data(), static_cast<ULONG>(memory.size()), nullptr) != 0) {
    throw ProgramError("can't list the handles");
  }
  const auto* const list = reinterpret_cast<const List*>(memory.data());
  const auto* const entries = reinterpret_cast<const Entry*>(list + 1);
  return static_cast<int>(
      std::count_if(entries, entries + list->count, [&](const Entry& entry) { return entry.processId == processId; }));
}

int privateMegabytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters{};
  if (K32GetProcessMemoryInfo(process, &counters, sizeof(counters)) == 0) {
    throw ProgramError("can't read the program's memory");
  }
  return static_cast<int>(counters.PagefileUsage >> 20U);
}

}  // namespace

ResourceCount countResources(const Program& program) {
  const int memory = privateMegabytes(program.process());
  if (isWine()) {
    return {.gdi = gdiObjectsInTable(program.process()),
            .user = usedUserObjects(),
            .kernel = kernelHandlesInList(program.processId()),
            .memory = memory};
  }
  DWORD handles = 0;
  GetProcessHandleCount(program.process(), &handles);
  return {.gdi = static_cast<int>(GetGuiResources(program.process(), GR_GDIOBJECTS)),
          .user = static_cast<int>(GetGuiResources(program.process(), GR_USEROBJECTS)),
          .kernel = static_cast<int>(handles),
          .memory = memory};
}

void expectNoLeak(const Program& program, const ResourceCount& before, int slack) {
  const ResourceCount after = countResources(program);
  EXPECT_LE(after.gdi, before.gdi + slack);
  EXPECT_LE(after.user, before.user + slack);
  EXPECT_LE(after.kernel, before.kernel + slack);
  EXPECT_LE(after.memory, before.memory + slack);
}

}  // namespace quillhue
