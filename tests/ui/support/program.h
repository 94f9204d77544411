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

/// What ends a test: the program has crashed, hangs, or does not show what was waited for.
class ProgramError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The longest that anything may take.
inline constexpr std::chrono::seconds kPatience{10};

/// The editor itself, started as a user does and ended with the test, whatever has become of it.
class Program {
 public:
  /// Waits for the main window.
  explicit Program(const std::vector<std::wstring>& arguments = {});
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  /// The file that is started, for all tests; told by the command line.
  static void setFile(std::wstring file);

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HANDLE process() const { return process_.hProcess; }
  [[nodiscard]] DWORD processId() const { return process_.dwProcessId; }
  [[nodiscard]] DWORD threadId() const { return process_.dwThreadId; }
  [[nodiscard]] bool isRunning() const;

  /// Sends a message and returns the answer. Everything that it causes has happened then.
  LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// The same with the address of a value, which the program may change.
  template <typename Value>
  LRESULT askAbout(HWND window, UINT message, WPARAM wParam, Value& value) const;
  /// Posts a message, for what opens a dialog.
  void post(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// A command, as its menu item sends it: by `run` it is carried out when that returns, so it must not ask anything.
  void run(std::int32_t command) const { ask(window_, WM_COMMAND, static_cast<WPARAM>(command)); }
  void start(std::int32_t command) const { post(window_, WM_COMMAND, static_cast<WPARAM>(command)); }

  /// Waits until `ready` gives something that counts as true, and returns it. `what` completes "waited for".
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
  /// Waits until `look` gives what is expected.
  template <typename Expected, typename Look>
  void awaitEqual(const Expected& expected, Look look) const {
    EXPECT_NO_THROW(await("what is expected", [&] { return look() == expected; }));
    ASSERT_EQ(look(), expected);
  }
  void awaitTitle(const std::wstring& title) const;
  /// Waits until all input so far has had its effect: a program paints when there is none left.
  void awaitInput() const;

  /// A visible control, which has to be there.
  [[nodiscard]] HWND control(const wchar_t* className, const wchar_t* text = nullptr) const;
  [[nodiscard]] HWND button(const wchar_t* text) const { return control(L"Button", text); }
  /// Presses and releases the mouse on the middle of a control or a button, and waits until all is done.
  void click(HWND control) const;
  void click(const wchar_t* text) const { click(button(text)); }
  /// Presses the mouse at the first point, with keys held, and releases it at the last. Each move has its effect.
  void drag(std::initializer_list<Point> points, const std::vector<int>& held = {}) const;
  /// Drops files on the main window or another one, as an explorer of files does when the user lets them go there.
  void drop(const std::vector<std::wstring>& files, HWND onto = nullptr) const;
  void resize(Size size) const;

  /// Waits for the process to end, and returns its exit code.
  DWORD awaitEnd() const;
  /// Closes the window, which must not ask anything, and waits for the end with exit code 0.
  void close() const;

  /// All windows that have no parent, the hidden ones too.
  [[nodiscard]] std::vector<HWND> windows() const;
  /// The uppermost of this class that is visible and can be used; null for none.
  [[nodiscard]] HWND topWindow(const wchar_t* className) const;
  /// Describes the windows on the screen, for messages of failed tests.
  [[nodiscard]] std::string description() const;

 private:
  // Between two looks, in milliseconds.
  static constexpr DWORD kPause = 5;

  explicit Program(const PROCESS_INFORMATION& process) : process_(process) {}
  void checkRunning(const std::string& what) const;

  PROCESS_INFORMATION process_;
  HWND window_ = nullptr;
};

/// Memory in the program, for messages that take pointers.
class ProgramMemory {
 public:
  /// Begins with a copy of what is here.
  ProgramMemory(const Program& program, const void* content, std::size_t size);
  ProgramMemory(const ProgramMemory&) = delete;
  ProgramMemory& operator=(const ProgramMemory&) = delete;
  ~ProgramMemory();

  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }
  void read(void* to, std::size_t size) const;
  /// Leaves it to the program.
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

/// Runs the command-line tool that stands beside the program; it has to do what it is told.
void runTool(const std::vector<std::wstring>& arguments);

/// Whether this runs under Wine, which leaves some of the system's own numbers out.
[[nodiscard]] bool isWine();

[[nodiscard]] std::string narrow(const std::wstring& text);

}  // namespace quillhue
