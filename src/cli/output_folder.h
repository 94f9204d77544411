#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"
#include "cli/file_list.h"

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
  const FileListOptions& list;
};

/// Makes one result. Reports a refusal to the console and returns false. Returns true for a skipped file.
using WriteResult = std::function<bool(const std::string& from, const std::string& to, Console& console)>;
/// Makes the function for one thread.
using MakeWriteResult = std::function<WriteResult()>;

/// Writes a result for each file, including the files of each folder. The name of a result is the file's own name with
/// the extension; results of subfolders go into subfolders of the same name. In one call no result replaces another
/// result or another input. Refuses the usage when the folder's name is empty or standard input has no name. Works on
/// several files at the same time, like runJobs.
ExitStatus writeIntoFolder(const FolderOutput& output, const std::vector<std::string>& files, Console& console,
                           const MakeWriteResult& makeWrite);

}  // namespace quillhue::cli
