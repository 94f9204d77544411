#pragma once

#include <new>

#include "ui/win32/system.h"

namespace quillhue {

/// Says that there is not enough memory, without allocating any. Shows nothing while such a message is open already, or
/// if the failed message was WM_PAINT: closing the message box would repaint, fail and show it again. The unpainted
/// area then stays as it is until the next repaint. `window` may be null.
void reportNoMemory(HWND window, UINT message = 0) noexcept;

/// Runs code that the system calls, such as a window procedure. An exception must not pass through the system's code.
/// If there is not enough memory, reports that and returns `otherwise`.
template <typename Result, typename Code>
Result guarded(HWND window, UINT message, Result otherwise, Code code) noexcept {
  try {
    return code();
  } catch (const std::bad_alloc&) {
    reportNoMemory(window, message);
    return otherwise;
  }
}

/// The same without a result.
template <typename Code>
void guarded(HWND window, Code code) noexcept {
  guarded(window, 0, 0, [&] {
    code();
    return 0;
  });
}

}  // namespace quillhue
