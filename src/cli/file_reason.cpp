#include "cli/file_reason.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/utf8.h"
#include "formats/files.h"

namespace quillhue::cli {

namespace {

namespace fs = std::filesystem;

// Puts the reason between the text and its full stop.
std::string withReason(Failure failure, const std::string& reason) {
  std::string text(textOf(failure));
  if (!reason.empty()) {
    text.pop_back();
    text += ": " + reason + '.';
  }
  return text;
}

// Returns whether the file exists but a missing right prevents opening it in this mode.
bool isForbidden(const fs::path& path, std::ios::openmode mode) {
  errno = 0;
  const std::fstream file(path, mode | std::ios::binary);
  return !file && (errno == EACCES || errno == EPERM);
}

std::string whyNotOpened(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    return "there is no such file";
  }
  const bool isFolder = fs::is_directory(status);
  if (isFolder) {
    // A folder is only read by listing its files.
    const fs::directory_iterator listing(path, error);
  }
  if (isFolder && !error) {
    return "it is a folder";
  }
  const bool forbidden = error == std::errc::permission_denied || (!isFolder && isForbidden(path, std::ios::in));
  return forbidden ? "you have no right to read it" : "";
}

std::string whyNotCreated(const fs::path& path, std::size_t size) {
  std::error_code error;
  if (fs::is_directory(path, error)) {
    return "it is a folder";
  }
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  if (!fs::is_directory(folder, error)) {
    return error == std::errc::permission_denied ? "you have no right to open its folder" : "its folder does not exist";
  }
  const fs::space_info space = fs::space(folder, error);
  if (!error && space.available < size) {
    return "the disk is full";
  }
  if (fs::exists(path, error)) {
    return isForbidden(path, std::ios::in | std::ios::out) ? "you have no right to write it" : "";
  }
  return "perhaps you have no right to write to its folder";
}

}  // namespace

std::string openingFailure(Failure failure, const std::string& file) {
  const bool isFile = failure == Failure::couldNotOpen && file != "-";
  return withReason(failure, isFile ? whyNotOpened(toPath(fromUtf8(file))) : std::string());
}

std::string creationFailure(const std::string& file, std::size_t size, int error) {
  return withReason(Failure::couldNotCreate,
                    error == ENOSPC ? "the disk is full" : whyNotCreated(toPath(fromUtf8(file)), size));
}

}  // namespace quillhue::cli
