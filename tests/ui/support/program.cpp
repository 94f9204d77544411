#include "ui/support/program.h"

#include <gtest/gtest.h>

#include <utility>

#include "core/utf8.h"
#include "ui/support/windows.h"

namespace quillhue {

namespace {

std::wstring& programFile() {
  static std::wstring file;
  return file;
}

std::wstring commandLine(const std::vector<std::wstring>& arguments) {
  std::wstring line = L'"' + Program::file() + L'"';
  for (const std::wstring& argument : arguments) {
    line += L" \"" + argument + L'"';
  }
  return line;
}

DWORD milliseconds(std::chrono::milliseconds time) { return static_cast<DWORD>(time.count()); }

}  // namespace

void Program::setFile(std::wstring file) { programFile() = std::move(file); }

const std::wstring& Program::file() { return programFile(); }

Program::Program(const std::vector<std::wstring>& arguments) {
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION made{};
  std::wstring line = commandLine(arguments);
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made) == 0) {
    throw ProgramError("can't start " + narrow(line));
  }
  CloseHandle(made.hThread);
  process_ = made.hProcess;
  processId_ = made.dwProcessId;
  threadId_ = made.dwThreadId;
  try {
    window_ = await("the main window", [this]() -> HWND {
      for (HWND window : topWindows()) {
        if (windowClass(window) == L"Quillhue4" || windowClass(window) == L"#32770") {
          return window;
        }
      }
      return nullptr;
    });
    if (windowClass(window_) != L"Quillhue4") {
      window_ = await("the main window behind a message", [this] { return GetWindow(window_, GW_OWNER); });
    }
    // Until it has handled all that its start brings.
    WaitForInputIdle(process_, milliseconds(kPatience));
  } catch (...) {
    TerminateProcess(process_, 1);
    CloseHandle(process_);
    throw;
  }
}

Program::~Program() {
  if (isRunning()) {
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, milliseconds(kPatience));
  }
  CloseHandle(process_);
}

bool Program::isRunning() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }

void Program::checkRunning(const std::string& what) const {
  if (!isRunning()) {
    DWORD code = 0;
    GetExitCodeProcess(process_, &code);
    throw ProgramError("the program ended with code " + std::to_string(code) + " when it was waited for " + what);
  }
}

LRESULT Program::ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, milliseconds(kPatience), &answer) == 0) {
    const std::string what = "the answer to message " + std::to_string(message);
    checkRunning(what);
    throw ProgramError("waited in vain for " + what + "; " + description());
  }
  return static_cast<LRESULT>(answer);
}

void Program::post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  if (PostMessageW(window, message, wParam, lParam) == 0) {
    checkRunning("a message to be taken");
    throw ProgramError("can't post message " + std::to_string(message));
  }
}

void Program::awaitTitle(const std::wstring& title) const {
  await("the title " + narrow(title), [&] { return textOf(window_) == title; });
}

DWORD Program::awaitEnd() {
  if (WaitForSingleObject(process_, milliseconds(kPatience)) != WAIT_OBJECT_0) {
    throw ProgramError("waited in vain for the end; " + description());
  }
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return code;
}

void Program::close() {
  post(window_, WM_CLOSE);
  EXPECT_EQ(awaitEnd(), 0U);
}

std::vector<HWND> Program::topWindows() const {
  struct Search {
    DWORD process;
    std::vector<HWND> found;
  };
  Search search{processId_, {}};
  EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        auto& asked = *reinterpret_cast<Search*>(data);
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == asked.process && IsWindowVisible(window) != 0) {
          asked.found.push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string Program::description() const {
  std::string result = "it shows";
  for (HWND window : topWindows()) {
    result += " [" + narrow(windowClass(window)) + " \"" + narrow(textOf(window)) + '"';
    if (windowClass(window) == L"#32770") {
      result += ": " + narrow(dialogText(window));
    }
    result += ']';
  }
  return result;
}

ProgramMemory::ProgramMemory(const Program& program, std::size_t size)
    : process_(program.process()),
      memory_(
          static_cast<std::byte*>(VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))),
      size_(size) {
  if (memory_ == nullptr) {
    throw ProgramError("no memory in the program");
  }
}

ProgramMemory::~ProgramMemory() {
  if (memory_ != nullptr) {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
  }
}

void ProgramMemory::write(const void* from, std::size_t size, std::size_t offset) {
  if (WriteProcessMemory(process_, memory_ + offset, from, size, nullptr) == 0) {
    throw ProgramError("can't write to the program's memory");
  }
}

void ProgramMemory::read(void* to, std::size_t size, std::size_t offset) const {
  if (ReadProcessMemory(process_, memory_ + offset, to, size, nullptr) == 0) {
    throw ProgramError("can't read the program's memory");
  }
}

std::wstring ProgramMemory::text(std::size_t offset) const {
  std::wstring all((size_ - offset) / sizeof(wchar_t), L'\0');
  read(all.data(), all.size() * sizeof(wchar_t), offset);
  return all.substr(0, all.find(L'\0'));
}

bool isWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

std::string narrow(const std::wstring& text) { return toUtf8(text); }

Scale screenScale() {
  HDC screen = GetDC(nullptr);
  const Scale scale{GetDeviceCaps(screen, LOGPIXELSX)};
  ReleaseDC(nullptr, screen);
  return scale;
}

}  // namespace quillhue
