#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/json.h"
#include "formats/work_image.h"

namespace quillhue::cli {

/// Adds a file to the console's log. With --verbose, writes a line about it to standard error.
void addRead(Console& console, FileRecord record);

/// The same for a file that is about to be written. Memory is needed only before that, so that a file is never written
/// by a call that then fails for lack of memory.
class WrittenFile {
 public:
  /// `note` says how the format has changed the palette, if it has.
  WrittenFile(Console& console, FileRecord record, const std::string& note = {});
  /// Adds the file, which is written now, and the note. Needs no memory.
  void add();

 private:
  Console& console_;
  std::string line_;
  std::string note_;
  FileRecord record_;
};

/// Describes a decoded image.
[[nodiscard]] FileRecord recordOf(const std::string& file, std::string_view format, std::uint64_t bytes,
                                  const WorkImage& image);

/// Returns {"file", "read", "written"} for a file from the command line, and clears the log.
[[nodiscard]] JsonObject filesJson(const std::string& file, Console& console);
/// Adds "read" and "written" to the object, and clears the log.
JsonObject& addFiles(JsonObject& object, Console& console);

}  // namespace quillhue::cli
