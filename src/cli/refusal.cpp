#include "cli/refusal.h"

#include <algorithm>

namespace quillhue::cli {

void reportRefusal(Console& console, const std::string& file, std::string_view text) {
  std::string line(text);
  std::ranges::replace(line, '\n', ' ');
  line.insert(0, file + ": ");
  // A name may hold line feeds and what drives a terminal.
  std::ranges::replace_if(line, [](unsigned char letter) { return letter < ' '; }, '?');
  console.err << line << '\n';
}

}  // namespace quillhue::cli
