#include "cli/refusal.h"

#include <algorithm>
#include <utility>

#include "cli/json.h"

namespace quillhue::cli {

namespace {

void skipFile(const FileRefusal& skipped, bool isMentioned, bool json, Console& console) {
  if (isMentioned && !console.notes.quiet) {
    reportRefusal(console, skipped.file, skipped.text);
  }
  if (json) {
    writeJson(console, JsonObject().add("file", skipped.file).add("skipped", skipped.text));
  }
}

}  // namespace

ExitStatus refuseFile(const FileRefusal& refused, bool json, Console& console) {
  reportRefusal(console, refused.file, refused.text);
  if (json) {
    writeJson(console, JsonObject().add("file", refused.file).add("error", refused.text));
  }
  return kRefused;
}

void reportSkipped(const FileRefusal& skipped, bool json, Console& console) { skipFile(skipped, true, json, console); }

ExitStatus refuseInput(const FileRefusal& refused, bool skipsUnknown, bool json, Console& console) {
  if (!skipsUnknown || refused.text != textOf(Failure::unrecognisedType)) {
    return refuseFile(refused, json, console);
  }
  skipFile({refused.file, "this file is skipped, because its type is unknown."}, console.files.verbose, json, console);
  return kDone;
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
