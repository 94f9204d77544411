#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"

namespace quillhue::cli {

/// Options for writing many results into one folder.
struct FolderOutput {
  std::string folder;
  /// Extension of all results, without a dot.
  std::string_view extension;
  /// The file name to use for standard input.
  std::string streamName;
  /// Replace existing files.
  bool force = false;
};

/// Makes one result. Reports a refusal and returns false.
using WriteResult = std::function<bool(const std::string& from, const std::string& to)>;

/// Calls `write` with each file, including the files of each folder, and the name of its result: the file's own name
/// with the extension. In one call no result replaces another result or another input. Refuses the usage when the
/// folder's name is empty or standard input has no name.
ExitStatus writeIntoFolder(const FolderOutput& output, const std::vector<std::string>& files, Console& console,
                           const WriteResult& write);

}  // namespace quillhue::cli
