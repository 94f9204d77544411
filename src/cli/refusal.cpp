#include "cli/refusal.h"

#include <algorithm>
#include <utility>

#include "cli/json.h"

namespace quillhue::cli {

ExitStatus refuseFile(const FileRefusal& refused, bool json, Console& console) {
  reportRefusal(console, refused.file, refused.text);
  if (json) {
    writeJson(console, JsonObject().add("file", refused.file).add("error", refused.text));
  }
  return kRefused;
}

std::string printable(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char letter) { return (letter < ' ' && letter != '\n') || letter == 0x7F; }, '?');
  return text;
}

std::string printableName(std::string file) {
  std::ranges::replace(file, '\n', '?');
  return printable(std::move(file));
}

std::string fileLine(const std::string& file, std::string_view text) {
  std::string reason(text);
  std::ranges::replace(reason, '\n', ' ');
  std::string line = printableName(file);
  line += ": ";
  line += reason;
  return printable(line);
}

void reportRefusal(Console& console, const std::string& file, std::string_view text) {
  console.err << fileLine(file, text) << '\n';
}

}  // namespace quillhue::cli
