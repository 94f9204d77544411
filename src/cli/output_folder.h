#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"

namespace quillhue::cli {

/// Where the results of many files go.
struct FolderOutput {
  std::string folder;
  /// Of every result, without a dot.
  std::string_view extension;
  /// The file name that standard input is taken to have.
  std::string streamName;
  /// Files that exist may be replaced.
  bool force = false;
};

/// Makes one result; reports a refusal and answers false.
using WriteResult = std::function<bool(const std::string& from, const std::string& to)>;

/// Calls `write` for every file, and for the files in every folder, with the name of its result, which has the file's
/// own name and the extension. Within one call no result replaces another one, nor a file that is still to be read.
/// Refuses the usage when the folder or standard input has no name.
ExitStatus writeIntoFolder(const FolderOutput& output, const std::vector<std::string>& files, Console& console,
                           const WriteResult& write);

}  // namespace quillhue::cli
