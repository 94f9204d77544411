#include "cli/output_folder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <mutex>
#include <ranges>
#include <set>
#include <system_error>

#include "cli/command_line.h"
#include "cli/jobs.h"
#include "cli/refusal.h"
#include "core/utf8.h"
#include "formats/files.h"

namespace quillhue::cli {

namespace {

std::string inLowerCase(std::string name) {
  std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return name;
}

// A set of existing files that also finds a file by another path to it. Only files with the same name are compared on
// disk, so thousands of files cost only one look each.
class FileSet {
 public:
  void add(const std::string& file) { files_.emplace(keyOf(file), toPath(fromUtf8(file))); }

  [[nodiscard]] bool contains(const std::string& file) const {
    const auto [first, last] = files_.equal_range(keyOf(file));
    return std::any_of(first, last, [path = toPath(fromUtf8(file))](const auto& known) {
      std::error_code unknown;
      return std::filesystem::equivalent(path, known.second, unknown);
    });
  }

 private:
  // Returns the file's own name after following all links. It is in lower case, because some systems ignore case.
  static std::string keyOf(const std::string& file) {
    std::error_code unknown;
    const auto path = std::filesystem::weakly_canonical(toPath(fromUtf8(file)), unknown);
    return inLowerCase(toUtf8(toFileName(path.filename())));
  }

  std::multimap<std::string, std::filesystem::path> files_;
};

// Decides on the results of all files.
class Results {
 public:
  Results(const FolderOutput& output, const std::vector<ListedFile>& inputs) : output_(output) {
    std::ranges::for_each(inputs, [this](const ListedFile& input) { read_.add(input.name); });
  }

  [[nodiscard]] std::filesystem::path folderOf(const ListedFile& input) const {
    return toPath(fromUtf8(output_.folder)) / toPath(fromUtf8(input.subfolder));
  }

  [[nodiscard]] std::filesystem::path targetOf(const ListedFile& input) const {
    std::filesystem::path target =
        folderOf(input) / toPath(fromUtf8(input.name == "-" ? output_.streamName : input.name)).stem();
    target += '.';
    target += output_.extension;
    return target;
  }

  // Any number of threads may call this if no two results have the same name.
  ExitStatus write(const ListedFile& input, const WriteResult& writeResult, Console& console) {
    const std::string& from = input.name;
    FileSet own;
    own.add(from);
    const std::string to = toUtf8(toFileName(targetOf(input)));
    if (isWritten(to)) {
      return refuseFile({from, "Another file has already been converted to " + to + '.'}, output_.list.json, console);
    }
    if (output_.force && !own.contains(to) && read_.contains(to)) {
      return refuseFile({from, "Its result would replace " + to + ", which is also an input."}, output_.list.json,
                        console);
    }
    if (!writeResult(from, to, console)) {
      return kRefused;
    }
    const std::lock_guard lock(mutex_);
    written_.add(to);
    return kDone;
  }

 private:
  [[nodiscard]] bool isWritten(const std::string& file) {
    const std::lock_guard lock(mutex_);
    return written_.contains(file);
  }

  const FolderOutput& output_;
  FileSet read_;
  std::mutex mutex_;
  FileSet written_;
};

// Returns whether two results may be the same file, by name in any case or by a link.
bool mayCollide(const Results& results, const std::vector<ListedFile>& inputs) {
  std::set<std::string> names;
  return std::ranges::any_of(inputs, [&](const ListedFile& input) {
    const std::filesystem::path target = results.targetOf(input);
    std::error_code unknown;
    return !names.insert(inLowerCase(toUtf8(toFileName(target)))).second ||
           std::filesystem::is_symlink(target, unknown);
  });
}

// Creates the folders of all results. Those that are still empty at the end go again, because all their files were
// refused or skipped.
class ResultFolders {
 public:
  ResultFolders(const Results& results, const std::vector<ListedFile>& inputs) {
    for (const ListedFile& input : inputs) {
      create(results.folderOf(input));
    }
  }
  ResultFolders(const ResultFolders&) = delete;
  ResultFolders& operator=(const ResultFolders&) = delete;
  ~ResultFolders() {
    std::error_code isNotEmpty;
    std::ranges::for_each(std::views::reverse(created_),
                          [&](const std::filesystem::path& folder) { std::filesystem::remove(folder, isNotEmpty); });
  }

 private:
  // Creates missing parents first. A folder that can't be created makes the writing of its files fail, which says why.
  void create(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::is_directory(folder, error) || !folder.has_relative_path()) {
      return;
    }
    create(folder.parent_path());
    if (std::filesystem::create_directory(folder, error)) {
      created_.push_back(folder);
    }
  }

  std::vector<std::filesystem::path> created_;
};

}  // namespace

ExitStatus writeIntoFolder(const FolderOutput& output, const std::vector<std::string>& files, Console& console,
                           const MakeWriteResult& makeWrite) {
  // An empty variable in a script must not turn the last file into the output.
  if (output.folder.empty()) {
    refuseUsage("--out-dir", "names no folder");
  }
  if (std::ranges::find(files, "-") != files.end() && output.streamName.empty()) {
    refuseUsage("--name", "is needed for standard input with --out-dir");
  }
  std::error_code error;
  std::filesystem::create_directories(toPath(fromUtf8(output.folder)), error);
  if (error) {
    return refuseFile({output.folder, "Could not create the folder: " + error.message() + '.'}, output.list.json,
                      console);
  }
  const std::vector<ListedFile> inputs = listFiles(files, output.folder, output.list, console);
  Results results(output, inputs);
  const ResultFolders folders(results, inputs);
  // Of two results with the same name, the second is refused only if the first was written, so their order matters.
  const auto jobs = mayCollide(results, inputs) ? 1 : output.list.jobs;
  return runJobs(inputs, jobs, console, [&]() -> Job {
    return [&results, write = makeWrite()](const ListedFile& input, Console& own) {
      return results.write(input, write, own);
    };
  });
}

}  // namespace quillhue::cli
