#pragma once

#include <windows.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/scratch_folder.h"
#include "ui/logic/geometry.h"

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
  [[nodiscard]] static const std::wstring& file();

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HANDLE process() const { return process_; }
  [[nodiscard]] DWORD processId() const { return processId_; }
  [[nodiscard]] DWORD threadId() const { return threadId_; }
  [[nodiscard]] bool isRunning() const;

  /// Sends a message and returns the answer. Everything that it causes has happened then.
  LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
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
  void awaitTitle(const std::wstring& title) const;

  /// Waits for the process to end, and returns its exit code.
  DWORD awaitEnd();
  /// Closes the window, which must not ask anything, and waits for the end with exit code 0.
  void close();

  /// All windows of the process that have no parent and are visible.
  [[nodiscard]] std::vector<HWND> topWindows() const;
  /// What the user would see now, in words, for messages of failed tests.
  [[nodiscard]] std::string description() const;

 private:
  // Between two looks, in milliseconds.
  static constexpr DWORD kPause = 5;

  void checkRunning(const std::string& what) const;

  HANDLE process_ = nullptr;
  DWORD processId_ = 0;
  DWORD threadId_ = 0;
  HWND window_ = nullptr;
};

/// Memory in the program, for messages that take pointers.
class ProgramMemory {
 public:
  ProgramMemory(const Program& program, std::size_t size);
  ProgramMemory(const ProgramMemory&) = delete;
  ProgramMemory& operator=(const ProgramMemory&) = delete;
  ~ProgramMemory();

  [[nodiscard]] LPARAM address() const { return reinterpret_cast<LPARAM>(memory_); }
  void write(const void* from, std::size_t size, std::size_t offset = 0);
  void read(void* to, std::size_t size, std::size_t offset = 0) const;
  /// The text that ends with a zero.
  [[nodiscard]] std::wstring text(std::size_t offset = 0) const;
  /// Leaves it to the program.
  void release() { memory_ = nullptr; }

 private:
  HANDLE process_;
  std::byte* memory_;
  std::size_t size_;
};

/// Whether this runs under Wine, which leaves some of the system's own numbers out.
[[nodiscard]] bool isWine();

[[nodiscard]] std::string narrow(const std::wstring& text);

/// The screen's resolution.
[[nodiscard]] Scale screenScale();

}  // namespace quillhue
