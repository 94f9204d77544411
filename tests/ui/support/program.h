#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Ends a test: the program has crashed, hangs, or does not show what the test waits for.
class ProgramError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Maximum time of any wait.
inline constexpr std::chrono::seconds kPatience{30};

/// The editor itself, started like a user starts it. It is ended with the test in any case.
class Program {
 public:
  /// Waits for the main window.
  explicit Program(const std::vector<std::wstring>& arguments = {});
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  /// Sets the file to start, for all tests. It comes from the command line.
  static void setFile(std::wstring file);

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HANDLE process() const { return process_.hProcess; }
  [[nodiscard]] DWORD processId() const { return process_.dwProcessId; }
  [[nodiscard]] DWORD threadId() const { return process_.dwThreadId; }
  [[nodiscard]] bool isRunning() const;

  /// Sends a message and returns the answer when all effects have happened.
  LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// The same with the address of a value, which the program may change.
  template <typename Value>
  LRESULT askAbout(HWND window, UINT message, WPARAM wParam, Value& value) const;
  /// Posts a message. For messages that open a dialog.
  void post(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// Send a command like its menu item. `run` returns when the command is carried out, so the command must not open a
  /// dialog.
  void run(std::int32_t command) const { ask(window_, WM_COMMAND, static_cast<WPARAM>(command)); }
  void start(std::int32_t command) const { post(window_, WM_COMMAND, static_cast<WPARAM>(command)); }

  /// Waits until `ready` returns a value that counts as true, and returns it. `what` completes "waited for".
  template <typename Ready>
  auto await(const std::string& what, Ready ready) const {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (true) {
      if (auto result = ready()) {
        return result;
      }
      checkRunning(what);
      if (std::chrono::steady_clock::now() > end) {
        throw ProgramError("waited in vain for " + what + "; " + description());
      }
      Sleep(kPause);
    }
  }
  /// Waits until `look` returns the expected value.
  template <typename Expected, typename Look>
  void awaitEqual(const Expected& expected, Look look) const {
    EXPECT_NO_THROW(await("what is expected", [&] { return look() == expected; }));
    ASSERT_EQ(look(), expected);
  }
  void awaitTitle(const std::wstring& title) const;
  /// Waits until the program has handled all input so far: it paints only when no input is left.
  void awaitInput() const;

  /// Returns a visible control. A missing control ends the test.
  [[nodiscard]] HWND control(const wchar_t* className, const wchar_t* text = nullptr) const;
  [[nodiscard]] HWND button(const wchar_t* text) const { return control(L"Button", text); }
  /// Clicks on the middle of a control or button, and waits for the effect.
  void click(HWND control) const;
  void click(const wchar_t* text) const { click(button(text)); }
  /// Presses the mouse at the first point with keys held, moves to each point, waits for the effect, and releases it at
  /// the last point.
  void drag(std::initializer_list<Point> points, const std::vector<int>& held = {}) const;
  /// Drops files on the main window or another one, like Explorer.
  void drop(const std::vector<std::wstring>& files, HWND onto = nullptr) const;
  void resize(Size size) const;

  /// Waits for the process to end, and returns its exit code.
  DWORD awaitEnd() const;
  /// Closes the window, which must not ask anything, and waits for the end with exit code 0.
  void close() const;

  /// Returns all windows without a parent, also hidden ones.
  [[nodiscard]] std::vector<HWND> windows() const;
  /// Returns the uppermost visible and enabled window of this class, or null.
  [[nodiscard]] HWND topWindow(const wchar_t* className) const;
  /// Describes the windows on the screen, for messages of failed tests.
  [[nodiscard]] std::string description() const;

 private:
  // Pause between two looks, in milliseconds.
  static constexpr DWORD kPause = 5;

  explicit Program(const PROCESS_INFORMATION& process) : process_(process) {}
  void checkRunning(const std::string& what) const;

  PROCESS_INFORMATION process_;
  HWND window_ = nullptr;
};

/// Memory in the program, for messages that take pointers.
class ProgramMemory {
 public:
  /// Starts with a copy of this content.
  ProgramMemory(const Program& program, const void* content, std::size_t size);
  ProgramMemory(const ProgramMemory&) = delete;
  ProgramMemory& operator=(const ProgramMemory&) = delete;
  ~ProgramMemory();

  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }
  void read(void* to, std::size_t size) const;
  /// Leaves the memory to the program.
  void release() { memory_ = nullptr; }

 private:
  HANDLE process_;
  void* memory_;
};

template <typename Value>
LRESULT Program::askAbout(HWND window, UINT message, WPARAM wParam, Value& value) const {
  const ProgramMemory memory(*this, &value, sizeof(value));
  const LRESULT answer = ask(window, message, wParam, memory.address());
  memory.read(&value, sizeof(value));
  return answer;
}

/// Returns the name of the command-line tool that is in the program's folder.
[[nodiscard]] std::wstring toolFile();
/// Runs the tool. A failure ends the test.
void runTool(const std::vector<std::wstring>& arguments);

/// Returns whether the tests run under Wine, which does not report some of the system's numbers.
[[nodiscard]] bool isWine();

[[nodiscard]] std::string narrow(const std::wstring& text);

}  // namespace quillhue
