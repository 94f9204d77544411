// editor_bench ROUNDS EMPTY FIRST EDITOR PALETTE: starts the three programs in turns, and prints a line "PROGRAM WORK
// MILLISECONDS" for each measurement. PROGRAM is `empty`, `first` or `editor`. PALETTE is a file for the editor.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/win32/system.h"

namespace {

using Clock = std::chrono::steady_clock;
using Windows = std::vector<HWND>;

constexpr int kSteps = 100;
constexpr DWORD kPatience = 30'000;
constexpr DWORD kPause = 300;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

BOOL CALLBACK takeVisible(HWND window, LPARAM found) {
  if (IsWindowVisible(window) == 0) {
    return TRUE;
  }
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// A running program, which is ended with this object.
class Program {
 public:
  /// Returns when the program's window is painted.
  explicit Program(std::wstring line) {
    // The system cleans up after the previous program.
    Sleep(kPause);
    const auto start = Clock::now();
    STARTUPINFOW information{};
    information.cb = sizeof information;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &information, &process_) ==
        0) {
      throw std::runtime_error("a program does not start");
    }
    WaitForInputIdle(process_.hProcess, kPatience);
    // The first program of a session may wait for the system before it shows its window.
    while (EnumThreadWindows(process_.dwThreadId, takeVisible, reinterpret_cast<LPARAM>(&window_)) != 0) {
      if (WaitForSingleObject(process_.hProcess, 1) != WAIT_TIMEOUT || millisecondsSince(start) > kPatience) {
        throw std::runtime_error("a program shows no window");
      }
    }
    awaitPainted({window_});
    startTime_ = millisecondsSince(start);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    TerminateProcess(process_.hProcess, 0);
    WaitForSingleObject(process_.hProcess, kPatience);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  [[nodiscard]] double startTime() const { return startTime_; }
  [[nodiscard]] HWND window() const { return window_; }
  /// Returns the visible control of a class. `kind` is a type of static control, such as SS_OWNERDRAW.
  [[nodiscard]] HWND control(const wchar_t* windowClass, LONG kind = 0) const {
    HWND child = nullptr;
    while ((child = FindWindowExW(window_, child, windowClass, nullptr)) != nullptr) {
      if (IsWindowVisible(child) != 0 && (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == kind) {
        return child;
      }
    }
    throw std::runtime_error("a control is missing");
  }
  void awaitPainted(const Windows& windows) const {
    for (HWND window : windows) {
      while (GetUpdateRect(window, nullptr, FALSE) != 0) {
        SwitchToThread();
      }
    }
    // The system considers a window painted when painting begins. The program answers when it has ended.
    if (SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr) == 0) {
      throw std::runtime_error("a program does not answer");
    }
  }

 private:
  PROCESS_INFORMATION process_{};
  HWND window_ = nullptr;
  double startTime_ = 0;
};

/// Returns the mean time of a step from the message to the painted windows, while the mouse is dragged up and down.
double dragTime(const Program& program, HWND dragged, const Windows& painted) {
  RECT box{};
  GetClientRect(dragged, &box);
  const auto at = [&](int step) { return MAKELPARAM(box.right / 2, box.bottom / 4 + step % 8 * 10); };
  SendMessageW(dragged, WM_LBUTTONDOWN, MK_LBUTTON, at(0));
  program.awaitPainted(painted);
  const auto start = Clock::now();
  for (int step = 1; step <= kSteps; ++step) {
    SendMessageW(dragged, WM_MOUSEMOVE, MK_LBUTTON, at(step));
    program.awaitPainted(painted);
  }
  const double taken = millisecondsSince(start) / kSteps;
  SendMessageW(dragged, WM_LBUTTONUP, 0, at(0));
  return taken;
}

double repaintTime(const Program& program, HWND window) {
  const auto start = Clock::now();
  for (int step = 0; step < kSteps; ++step) {
    InvalidateRect(window, nullptr, TRUE);
    program.awaitPainted({window});
  }
  return millisecondsSince(start) / kSteps;
}

void print(const char* program, const char* work, double milliseconds) {
  std::printf("%s %s %.3f\n", program, work, milliseconds);
  std::fflush(stdout);
}

void measureEmpty(const std::wstring& file) {
  const Program program(file);
  print("empty", "start", program.startTime());
  print("empty", "drag", dragTime(program, program.window(), {program.window()}));
  print("empty", "repaint", repaintTime(program, program.window()));
}

void measureEditor(const std::wstring& file, const std::wstring& palette) {
  print("editor", "start", Program(file).startTime());
  const Program program(file + L" \"" + palette + L'"');
  print("editor", "start-with-file", program.startTime());
  HWND grid = program.control(L"QuillhueGrid");
  HWND bars = program.control(L"Static", SS_OWNERDRAW);
  print("editor", "drag", dragTime(program, bars, {bars, grid}));
  print("editor", "repaint", repaintTime(program, grid));
}

std::wstring quoted(const wchar_t* file) { return std::wstring(L"\"") + file + L'"'; }

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 6) {
    std::fputs("usage: editor_bench ROUNDS EMPTY FIRST EDITOR PALETTE\n", stderr);
    return 2;
  }
  try {
    {
      // The first program of a session starts the system's desktop.
      const Program first(quoted(arguments[2]));
    }
    for (int round = std::stoi(arguments[1]); round > 0; --round) {
      measureEmpty(quoted(arguments[2]));
      print("first", "start", Program(quoted(arguments[3])).startTime());
      measureEditor(quoted(arguments[4]), arguments[5]);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
