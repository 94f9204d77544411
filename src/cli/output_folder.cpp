#include "cli/output_folder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <mutex>
#include <set>
#include <system_error>

#include "cli/command_line.h"
#include "cli/input.h"
#include "cli/jobs.h"
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
  Results(const FolderOutput& output, const std::vector<std::string>& inputs) : output_(output) {
    std::ranges::for_each(inputs, [this](const std::string& file) { read_.add(file); });
  }

  [[nodiscard]] std::filesystem::path targetOf(const std::string& from) const {
    std::filesystem::path target =
        toPath(fromUtf8(output_.folder)) / toPath(fromUtf8(from == "-" ? output_.streamName : from)).stem();
    target += '.';
    target += output_.extension;
    return target;
  }

  // Any number of threads may call this if no two results have the same name.
  ExitStatus write(const std::string& from, const WriteResult& writeResult, Console& console) {
    FileSet own;
    own.add(from);
    const std::string to = toUtf8(toFileName(targetOf(from)));
    if (isWritten(to)) {
      reportRefusal(console, from, "Another file has already been converted to " + to + '.');
    } else if (output_.force && !own.contains(to) && read_.contains(to)) {
      reportRefusal(console, from, "Its result would replace " + to + ", which is also an input.");
    } else if (writeResult(from, to, console)) {
      const std::lock_guard lock(mutex_);
      written_.add(to);
      return kDone;
    }
    return kRefused;
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
bool mayCollide(const Results& results, const std::vector<std::string>& inputs) {
  std::set<std::string> names;
  return std::ranges::any_of(inputs, [&](const std::string& from) {
    const std::filesystem::path target = results.targetOf(from);
    std::error_code unknown;
    return !names.insert(inLowerCase(toUtf8(toFileName(target)))).second ||
           std::filesystem::is_symlink(target, unknown);
  });
}

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
    reportRefusal(console, output.folder, "Could not create the folder: " + error.message() + '.');
    return kRefused;
  }
  const std::vector<std::string> inputs = expandFolders(files);
  Results results(output, inputs);
  // Which of two results with the same name is refused depends on what became of the first.
  const auto jobs = mayCollide(results, inputs) ? 1 : output.jobs;
  return runJobs(inputs, jobs, console, [&]() -> Job {
    return [&results, write = makeWrite()](const std::string& from, Console& own) {
      return results.write(from, write, own);
    };
  });
}

}  // namespace quillhue::cli
