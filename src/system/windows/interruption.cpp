#include "system/interruption.h"

#include <windows.h>

#include <atomic>

namespace quillhue {

namespace {

// A console handler receives only the event.
std::atomic<bool> isInterrupted;

BOOL WINAPI noteInterrupt(DWORD event) {
  // Other events, such as closing the console, end the program in any case.
  const bool isFirst = event == CTRL_C_EVENT && !isInterrupted.exchange(true);
  return isFirst ? TRUE : FALSE;
}

}  // namespace

Interruption::Interruption() {
  isInterrupted = false;
  SetConsoleCtrlHandler(noteInterrupt, TRUE);
}

Interruption::~Interruption() { SetConsoleCtrlHandler(noteInterrupt, FALSE); }

bool Interruption::isRequested() const { return isInterrupted; }

}  // namespace quillhue
