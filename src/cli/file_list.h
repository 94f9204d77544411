#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// Options of the verbs that take many files and folders.
struct FileListOptions {
  /// Read subfolders too.
  bool recursive = false;
  /// Skip files of an unknown type instead of refusing them.
  bool skipsUnknown = false;
  /// The number of files to work on at the same time; without it, the number of processor cores.
  std::optional<std::int32_t> jobs;
  /// Write a JSON object for each file.
  bool json = false;
};

inline constexpr std::int32_t kMaxJobs = 64;

/// Adds --recursive, --skip-unknown and --jobs.
void addFileListOptions(Verb& verb, FileListOptions& options);

/// Refuses the usage if one of these options is given without --out-dir.
void requireOutDir(const FileListOptions& options);

/// A file to read.
struct ListedFile {
  std::string name;
  /// The file's folder, relative to the folder on the command line that contains it. Empty for a file that the command
  /// line names itself.
  std::string subfolder{};
};

/// Replaces each folder by its regular files, sorted by name; with --recursive also by those of its subfolders. Leaves
/// out the folder `outDir`. Reports other subfolders that are skipped, and folders without any file. A folder that
/// can't be listed stays among the files, so that it is later refused like a file.
[[nodiscard]] std::vector<ListedFile> listFiles(const std::vector<std::string>& files, const std::string& outDir,
                                                const FileListOptions& options, Console& console);

}  // namespace quillhue::cli
