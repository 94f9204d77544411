#include "ui/support/drop.h"

#include <windows.h>
// Needs windows.h before it.
#include <shlobj.h>

#include <cstring>

namespace quillhue {

void dropFiles(const Program& program, const std::vector<std::wstring>& names, HWND onto) {
  HWND target = onto == nullptr ? program.window() : onto;
  std::wstring list;
  for (const std::wstring& name : names) {
    list += name + L'\0';
  }
  list += L'\0';
  const std::size_t length = list.size() * sizeof(wchar_t);
  std::vector<std::byte> block(sizeof(DROPFILES) + length);
  DROPFILES header{};
  header.pFiles = sizeof(header);
  header.fWide = TRUE;
  std::memcpy(block.data(), &header, sizeof(header));
  std::memcpy(block.data() + sizeof(header), list.data(), length);
  if (isWine()) {
    // Wine hands the memory's address on as it is: it has to be memory of the program, which frees it.
    ProgramMemory memory(program, block.size());
    memory.write(block.data(), block.size());
    program.post(target, WM_DROPFILES, static_cast<WPARAM>(memory.address()));
    memory.release();
    return;
  }
  // Windows carries this memory over.
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, block.size());
  std::memcpy(GlobalLock(memory), block.data(), block.size());
  GlobalUnlock(memory);
  program.post(target, WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
}

}  // namespace quillhue
