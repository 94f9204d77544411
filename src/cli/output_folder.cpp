#include "cli/output_folder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <system_error>

#include "cli/command_line.h"
#include "cli/input.h"
#include "core/utf8.h"
#include "formats/files.h"

namespace quillhue::cli {

namespace {

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
    std::string name = toUtf8(toFileName(path.filename()));
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return name;
  }

  std::multimap<std::string, std::filesystem::path> files_;
};

}  // namespace

ExitStatus writeIntoFolder(const FolderOutput& output, const std::vector<std::string>& files, Console& console,
                           const WriteResult& write) {
  // An empty variable in a script must not turn the last file into the output.
  if (output.folder.empty()) {
    refuseUsage("--out-dir", "names no folder");
  }
  if (std::ranges::find(files, "-") != files.end() && output.streamName.empty()) {
    refuseUsage("--name", "is needed for standard input with --out-dir");
  }
  const std::filesystem::path folder = toPath(fromUtf8(output.folder));
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    reportRefusal(console, output.folder, "Could not create the folder.");
    return kRefused;
  }
  const std::vector<std::string> inputs = expandFolders(files);
  FileSet read;
  std::ranges::for_each(inputs, [&](const std::string& file) { read.add(file); });
  FileSet written;
  ExitStatus status = kDone;
  for (const std::string& from : inputs) {
    FileSet own;
    own.add(from);
    std::filesystem::path target = folder / toPath(fromUtf8(from == "-" ? output.streamName : from)).stem();
    target += '.';
    target += output.extension;
    const std::string to = toUtf8(toFileName(target));
    if (written.contains(to)) {
      reportRefusal(console, from, "Another file has already been converted to " + to + '.');
      status = kRefused;
    } else if (output.force && !own.contains(to) && read.contains(to)) {
      reportRefusal(console, from, "Its result would replace " + to + ", which is also an input.");
      status = kRefused;
    } else if (write(from, to)) {
      written.add(to);
    } else {
      status = kRefused;
    }
  }
  return status;
}

}  // namespace quillhue::cli
