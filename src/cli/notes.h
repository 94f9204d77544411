#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/command_line.h"
#include "cli/console.h"
#include "formats/notes/reading_note.h"

namespace quillhue::cli {

/// Add options that mean the same for every verb that reads or writes palettes and images: --standard; --quiet and
/// --verbose in a group of their own, which should be the last.
void addStandardFlag(Verb& verb, bool& standard);
void addMessageFlags(Verb& verb, Console& console);

/// Adds a note on a file. Unless the notes are quiet, writes it to standard error in one line.
void addNote(Console& console, const std::string& file, std::string_view text);
/// The same with the whole line, which names the file. Needs no memory if the console has room for the line.
void addNoteLine(Console& console, std::string line);

/// Adds the note, if there is one, and the way to the standard reading.
void addReadingNote(Console& console, const std::string& file, const std::optional<ReadingNote>& note);

}  // namespace quillhue::cli
