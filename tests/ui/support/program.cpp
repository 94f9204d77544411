#include "ui/support/program.h"

#include <cstring>
#include <filesystem>
#include <utility>

#include "core/utf8.h"
#include "ui/support/input.h"
#include "ui/support/windows.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

std::wstring& programFile() {
  static std::wstring file;
  return file;
}

PROCESS_INFORMATION startProcess(const std::wstring& file, const std::vector<std::wstring>& arguments) {
  std::wstring line = L'"' + file + L'"';
  for (const std::wstring& argument : arguments) {
    line += L" \"" + argument + L'"';
  }
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION made{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made) == 0) {
    throw ProgramError("can't start " + narrow(line));
  }
  CloseHandle(made.hThread);
  return made;
}

DWORD exitCodeOf(HANDLE process) {
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  return code;
}

constexpr DWORD kPatienceMilliseconds = std::chrono::milliseconds(kPatience).count();

}  // namespace

void Program::setFile(std::wstring file) { programFile() = std::move(file); }

Program::Program(const std::vector<std::wstring>& arguments) : Program(startProcess(programFile(), arguments)) {
  window_ = await("the main window", [this] {
    HWND message = topWindow(kDialogClass);
    return message != nullptr ? GetWindow(message, GW_OWNER) : topWindow(L"Quillhue4");
  });
  // Waits until the program has handled all messages of its start.
  WaitForInputIdle(process(), kPatienceMilliseconds);
}

Program::~Program() {
  if (isRunning()) {
    TerminateProcess(process(), 1);
    WaitForSingleObject(process(), kPatienceMilliseconds);
  }
  CloseHandle(process());
}

bool Program::isRunning() const { return WaitForSingleObject(process(), 0) == WAIT_TIMEOUT; }

void Program::checkRunning(const std::string& what) const {
  if (!isRunning()) {
    throw ProgramError("the program ended with code " + std::to_string(exitCodeOf(process())) +
                       " when it was waited for " + what);
  }
}

LRESULT Program::ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kPatienceMilliseconds, &answer) == 0) {
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

void Program::awaitInput() const {
  HWND statusBar = control(STATUSCLASSNAMEW);
  InvalidateRect(statusBar, nullptr, FALSE);
  await("the input to be taken", [&] { return GetUpdateRect(statusBar, nullptr, FALSE) == 0; });
}

HWND Program::control(const wchar_t* className, const wchar_t* text) const {
  return await("the control " + narrow(text == nullptr ? className : text),
               [&] { return findControl(window_, className, text); });
}

void Program::click(HWND control) const {
  clickAt(*this, middleOf(boxOnScreen(control)));
  awaitInput();
}

void Program::drag(std::initializer_list<Point> points, const std::vector<int>& held) const {
  activate(*this);
  moveTo(*this, *points.begin());
  {
    const HeldKeys keys(held);
    press();
  }
  for (const Point& point : points) {
    moveTo(*this, point);
    awaitInput();
  }
  release();
  awaitInput();
}

void Program::drop(const std::vector<std::wstring>& files, HWND onto) const {
  HWND target = onto == nullptr ? window_ : onto;
  std::wstring list;
  for (const std::wstring& file : files) {
    list += file + L'\0';
  }
  list += L'\0';
  DROPFILES header{};
  header.pFiles = sizeof(header);
  header.fWide = TRUE;
  std::string block(reinterpret_cast<const char*>(&header), sizeof(header));
  block.append(reinterpret_cast<const char*>(list.data()), list.size() * sizeof(wchar_t));
  if (isWine()) {
    // Wine passes the address on unchanged, so the memory must belong to the program, which frees it.
    ProgramMemory memory(*this, block.data(), block.size());
    post(target, WM_DROPFILES, static_cast<WPARAM>(memory.address()));
    memory.release();
    return;
  }
  // Windows copies this memory to the program.
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, block.size());
  std::memcpy(GlobalLock(memory), block.data(), block.size());
  GlobalUnlock(memory);
  post(target, WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
}

void Program::resize(Size size) const {
  SetWindowPos(window_, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER);
}

DWORD Program::awaitEnd() const {
  if (WaitForSingleObject(process(), kPatienceMilliseconds) != WAIT_OBJECT_0) {
    throw ProgramError("waited in vain for the end; " + description());
  }
  return exitCodeOf(process());
}

void Program::close() const {
  post(window_, WM_CLOSE);
  EXPECT_EQ(awaitEnd(), 0U);
}

std::vector<HWND> Program::windows() const {
  std::vector<HWND> windows;
  EnumThreadWindows(threadId(), addWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

HWND Program::topWindow(const wchar_t* className) const {
  for (HWND window : windows()) {
    if (windowClass(window) == className && IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0) {
      return window;
    }
  }
  return nullptr;
}

std::string Program::description() const {
  std::string result = "it shows";
  for (HWND window : windows()) {
    if (IsWindowVisible(window) != 0) {
      result += " [" + narrow(windowClass(window)) + " \"" + narrow(textOf(window)) + '"';
      result += windowClass(window) == kDialogClass ? ": " + narrow(dialogText(window)) + ']' : "]";
    }
  }
  return result;
}

ProgramMemory::ProgramMemory(const Program& program, const void* content, std::size_t size)
    : process_(program.process()),
      memory_(VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)) {
  if (memory_ == nullptr || WriteProcessMemory(process_, memory_, content, size, nullptr) == 0) {
    throw ProgramError("no memory in the program");
  }
}

ProgramMemory::~ProgramMemory() {
  if (memory_ != nullptr) {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
  }
}

void ProgramMemory::read(void* to, std::size_t size) const {
  if (ReadProcessMemory(process_, memory_, to, size, nullptr) == 0) {
    throw ProgramError("can't read the program's memory");
  }
}

std::wstring toolFile() { return std::filesystem::path(programFile()).replace_filename(L"quillhue-cli.exe").wstring(); }

void runTool(const std::vector<std::wstring>& arguments) {
  HANDLE process = startProcess(toolFile(), arguments).hProcess;
  WaitForSingleObject(process, INFINITE);
  const DWORD code = exitCodeOf(process);
  CloseHandle(process);
  if (code != 0) {
    throw ProgramError("the tool ended with code " + std::to_string(code));
  }
}

bool isWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

std::string narrow(const std::wstring& text) { return toUtf8(text); }

}  // namespace quillhue
