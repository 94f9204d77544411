#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "formats/failure.h"

namespace quillhue::cli {

/// Something was refused; the text says why.
using Refusal = std::unexpected<std::string>;

[[nodiscard]] inline Refusal refusalOf(Failure failure) { return Refusal(std::string(textOf(failure))); }

/// A file that was refused, and why.
struct FileRefusal {
  std::string file;
  std::string text;
};

/// Reports it on standard error, and with `json` on standard output too.
ExitStatus refuseFile(const FileRefusal& refused, bool json, Console& console);

/// The text with what drives a terminal replaced; lines stay.
[[nodiscard]] std::string printable(std::string text);

/// Tells why a file was refused: one line.
void reportRefusal(Console& console, const std::string& file, std::string_view text);

}  // namespace quillhue::cli
