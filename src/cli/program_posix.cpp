#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <new>

#include "cli/application.h"
#include "cli/refusal.h"

int main(int argumentCount, char** arguments) try {
  std::ios::sync_with_stdio(false);
  // Threads that read must not flush what another one writes.
  std::cin.tie(nullptr);
  quillhue::cli::Console console{std::cin, std::cout, std::cerr};
  const char* const noColor = std::getenv("NO_COLOR");
  console.isTerminal = isatty(STDOUT_FILENO) == 1;
  console.colors = console.isTerminal && (noColor == nullptr || *noColor == '\0');
  console.showsProgress = isatty(STDERR_FILENO) == 1;
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
    console.columns = size.ws_col;
  }
  return quillhue::cli::run({arguments + 1, arguments + argumentCount}, console);
} catch (const std::bad_alloc&) {
  std::cerr << quillhue::cli::kNoMemoryText << '\n';
  return quillhue::cli::kRefused;
}
