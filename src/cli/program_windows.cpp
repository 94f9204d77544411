#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "cli/application.h"
#include "cli/refusal.h"
#include "core/utf8.h"

namespace {

// Makes the console show UTF-8 text and 24-bit colors, and restores its modes at the end.
class ConsoleModes {
 public:
  ConsoleModes() : codePage_(GetConsoleOutputCP()), output_(GetStdHandle(STD_OUTPUT_HANDLE)) {
    if (GetConsoleMode(output_, &mode_) != 0) {
      isConsole_ = true;
      SetConsoleOutputCP(CP_UTF8);
      showsColors_ = SetConsoleMode(output_, mode_ | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
    }
  }
  ConsoleModes(const ConsoleModes&) = delete;
  ConsoleModes& operator=(const ConsoleModes&) = delete;
  ~ConsoleModes() {
    if (isConsole_) {
      SetConsoleMode(output_, mode_);
      SetConsoleOutputCP(codePage_);
    }
  }

  [[nodiscard]] bool isConsole() const { return isConsole_; }
  [[nodiscard]] bool showsColors() const { return showsColors_; }
  // Returns the characters per line, or `otherwise` if the output is not a console.
  [[nodiscard]] int columns(int otherwise) const {
    CONSOLE_SCREEN_BUFFER_INFO info;
    return GetConsoleScreenBufferInfo(output_, &info) != 0 ? info.srWindow.Right - info.srWindow.Left + 1 : otherwise;
  }

 private:
  UINT codePage_;
  HANDLE output_;
  DWORD mode_ = 0;
  bool isConsole_ = false;
  bool showsColors_ = false;
};

}  // namespace

int wmain(int argumentCount, wchar_t** arguments) try {
  for (std::FILE* stream : {stdin, stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
  }
  // Threads that read must not flush what another one writes.
  std::cin.tie(nullptr);
  const ConsoleModes modes;
  quillhue::cli::Console console{std::cin, std::cout, std::cerr};
  const char* const noColor = std::getenv("NO_COLOR");
  console.isTerminal = modes.isConsole();
  if (_isatty(_fileno(stderr)) != 0) {
    console.progressDelay = quillhue::cli::kProgressDelay;
  }
  if (modes.showsColors() && (noColor == nullptr || *noColor == '\0')) {
    console.colors = quillhue::cli::TerminalColors::direct;
  }
  console.columns = modes.columns(console.columns);
  std::vector<std::string> utf8;
  for (int i = 1; i < argumentCount; ++i) {
    utf8.push_back(quillhue::toUtf8(arguments[i]));
  }
  return quillhue::cli::run(std::move(utf8), console);
} catch (const std::bad_alloc&) {
  std::cerr << quillhue::cli::kNoMemoryText << '\n';
  return quillhue::cli::kRefused;
}
