#include "cli/notes.h"

#include <utility>

#include "cli/refusal.h"

namespace quillhue::cli {

void addReadingFlags(Verb& verb, bool& standard, Console& console) {
  verb.addFlag("--standard", standard, "Read and write files by the published descriptions of their formats");
  verb.addFlag("--quiet", console.notes.quiet,
               "Don't say when a file is read or written differently from what it says or holds");
}

void addNote(Console& console, const std::string& file, std::string_view text) {
  std::string line = fileLine(file, text);
  if (!console.notes.quiet) {
    console.err << line << '\n';
  }
  console.notes.lines.push_back(std::move(line));
}

void addReadingNote(Console& console, const std::string& file, const std::optional<ReadingNote>& note) {
  if (!note) {
    return;
  }
  if (note->text.empty()) {
    addNote(console, file, "use --standard to read it.");
    return;
  }
  addNote(console, file, note->text + (note->standardReads ? ". Use --standard to read it as the file says." : "."));
}

}  // namespace quillhue::cli
