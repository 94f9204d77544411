#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/json.h"
#include "formats/work_image.h"

namespace quillhue::cli {

/// Add a file to the console's log. With --verbose, write a line about it to standard error.
void addRead(Console& console, FileRecord record);
void addWritten(Console& console, FileRecord record);

/// Describes a decoded image.
[[nodiscard]] FileRecord recordOf(const std::string& file, std::string_view format, std::uint64_t bytes,
                                  const WorkImage& image);

/// Returns {"file", "read", "written"} for a file from the command line, and clears the log.
[[nodiscard]] JsonObject filesJson(const std::string& file, Console& console);
/// Adds "read" and "written" to the object, and clears the log.
JsonObject& addFiles(JsonObject& object, Console& console);

}  // namespace quillhue::cli
