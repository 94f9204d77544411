#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <new>
#include <string_view>

#include "cli/application.h"
#include "cli/refusal.h"
#include "cli/terminal_colors.h"

namespace {

// Returns an environment variable, or an empty text.
std::string_view variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  using quillhue::cli::TerminalColors;
  std::ios::sync_with_stdio(false);
  // Threads that read must not flush what another one writes.
  std::cin.tie(nullptr);
  quillhue::cli::Console console{std::cin, std::cout, std::cerr};
  console.isTerminal = isatty(STDOUT_FILENO) == 1;
  const TerminalColors terminal = quillhue::cli::terminalColorsOf(variable("TERM"), variable("COLORTERM"));
  // A terminal without colors may not be able to overwrite a line either.
  if (isatty(STDERR_FILENO) == 1 && terminal != TerminalColors::none) {
    console.progressDelay = quillhue::cli::kProgressDelay;
  }
  if (console.isTerminal && variable("NO_COLOR").empty()) {
    console.colors = terminal;
  }
  console.possibleColors = terminal == TerminalColors::none ? TerminalColors::direct : terminal;
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    console.columns = size.ws_col;
  }
  return quillhue::cli::run({arguments + 1, arguments + argumentCount}, console);
} catch (const std::bad_alloc&) {
  std::cerr << quillhue::cli::kNoMemoryText << '\n';
  return quillhue::cli::kRefused;
}
