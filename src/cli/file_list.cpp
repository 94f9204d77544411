#include "cli/file_list.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

#include "cli/arguments.h"
#include "cli/refusal.h"
#include "core/utf8.h"
#include "formats/files.h"

namespace quillhue::cli {

namespace {

namespace fs = std::filesystem;

std::string nameOf(const fs::path& path) { return toUtf8(toFileName(path)); }

// Lists the files of one folder on the command line.
class FolderListing {
 public:
  FolderListing(const fs::path& folder, const std::string& outDir, const FileListOptions& options, Console& console)
      : root_(folder), outDir_(toPath(fromUtf8(outDir))), options_(options), console_(console) {
    add(folder);
    std::ranges::sort(files_, {}, &ListedFile::name);
    std::ranges::sort(skipped_);
    for (const auto& [subfolder, reason] : skipped_) {
      reportSkipped({subfolder, reason}, options_.json, console_);
    }
    if (files_.empty()) {
      reportSkipped({nameOf(folder), "the folder has no files, so there is nothing to do."}, options_.json, console_);
    }
  }

  [[nodiscard]] std::vector<ListedFile>& files() { return files_; }

 private:
  void add(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
      std::error_code unknown;
      if (entry->is_regular_file(unknown)) {
        files_.push_back({nameOf(entry->path()), subfolderOf(entry->path())});
      } else if (entry->is_directory(unknown)) {
        addSubfolder(entry->path());
      }
    }
    if (error) {
      files_.push_back({nameOf(folder)});
    }
  }

  void addSubfolder(const fs::path& folder) {
    std::error_code unknown;
    if (!outDir_.empty() && fs::equivalent(folder, outDir_, unknown)) {
      return;
    }
    if (!options_.recursive) {
      skipped_.emplace_back(nameOf(folder), "this folder is skipped. Use --recursive to read it too.");
    } else if (fs::is_symlink(folder, unknown)) {
      skipped_.emplace_back(nameOf(folder),
                            "this link to a folder is skipped. Name it on the command line to read it.");
    } else {
      add(folder);
    }
  }

  [[nodiscard]] std::string subfolderOf(const fs::path& file) const {
    const fs::path subfolder = file.parent_path().lexically_relative(root_);
    return subfolder == "." ? std::string() : nameOf(subfolder);
  }

  fs::path root_;
  fs::path outDir_;
  const FileListOptions& options_;
  Console& console_;
  std::vector<ListedFile> files_;
  std::vector<std::pair<std::string, std::string>> skipped_;
};

}  // namespace

void addFileListOptions(Verb& verb, FileListOptions& options) {
  verb.addFlag("--recursive", options.recursive, "Read subfolders too");
  verb.addFlag("--skip-unknown", options.skipsUnknown, "Skip files of an unknown type instead of refusing them");
  addNumberOption(verb, "--jobs", options.jobs, {1, kMaxJobs}, "Files to work on at once (default: one per core)");
}

void requireOutDir(const FileListOptions& options) {
  const auto refuse = [](bool isGiven, const char* option) {
    if (isGiven) {
      refuseUsage(option, "goes with --out-dir");
    }
  };
  refuse(options.recursive, "--recursive");
  refuse(options.skipsUnknown, "--skip-unknown");
  refuse(options.jobs.has_value(), "--jobs");
}

std::vector<ListedFile> listFiles(const std::vector<std::string>& files, const std::string& outDir,
                                  const FileListOptions& options, Console& console) {
  std::vector<ListedFile> listed;
  for (const std::string& file : files) {
    std::error_code unknown;
    const fs::path path = toPath(fromUtf8(file));
    if (file == "-" || !fs::is_directory(path, unknown)) {
      listed.push_back({file});
      continue;
    }
    std::ranges::move(FolderListing(path, outDir, options, console).files(), std::back_inserter(listed));
  }
  return listed;
}

}  // namespace quillhue::cli
