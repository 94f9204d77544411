#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "formats/failure.h"

namespace quillhue::cli {

inline constexpr std::string_view kNoMemoryText = "There is not enough free memory.";

/// A refusal with the reason as text.
using Refusal = std::unexpected<std::string>;

[[nodiscard]] inline Refusal refusalOf(Failure failure) { return Refusal(std::string(textOf(failure))); }

/// A refused file and the reason.
struct FileRefusal {
  std::string file;
  std::string text;
};

/// Reports the refusal on standard error, and with `json` also on standard output.
ExitStatus refuseFile(const FileRefusal& refused, bool json, Console& console);

/// Reports why a file or folder is skipped, with `json` also on standard output. Unlike a refusal this is a note, which
/// --quiet suppresses.
void reportSkipped(const FileRefusal& skipped, bool json, Console& console);

/// Refuses a file that could not be read. With `skipsUnknown`, skips it if no reader recognises its type, and mentions
/// that only with --verbose.
ExitStatus refuseInput(const FileRefusal& refused, bool skipsUnknown, bool json, Console& console);

/// Replaces control characters in the text; line ends stay.
[[nodiscard]] std::string printable(std::string text);

/// Returns the name of a file with control characters replaced, line ends too.
[[nodiscard]] std::string printableName(std::string file);
/// Returns one line, without a line end, about a file.
[[nodiscard]] std::string fileLine(const std::string& file, std::string_view text);

/// Reports in one line why a file was refused.
void reportRefusal(Console& console, const std::string& file, std::string_view text);

}  // namespace quillhue::cli
