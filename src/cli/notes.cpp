#include "cli/notes.h"

#include <utility>

#include "cli/refusal.h"

namespace quillhue::cli {

void addStandardFlag(Verb& verb, bool& standard) {
  verb.addFlag("--standard", standard, "Follow the published descriptions of the formats");
}

void addMessageFlags(Verb& verb, Console& console) {
  verb.beginBriefGroup("Messages");
  verb.addFlag("--quiet", console.notes.quiet, "Don't note what is read or written differently, and show no progress");
  verb.addFlag("--verbose", console.files.verbose, "Say which files are read and written: format, entries and size");
}

void addNote(Console& console, const std::string& file, std::string_view text) {
  addNoteLine(console, fileLine(file, text));
}

void addNoteLine(Console& console, std::string line) {
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
