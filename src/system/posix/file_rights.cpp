#include "system/posix/file_rights.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillhue {

namespace {

// Skips attributes that the user may not read or set.
void copyExtendedAttributes(int from, int to) {
  const ssize_t length = flistxattr(from, nullptr, 0);
  std::vector<char> names(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  const ssize_t listed = flistxattr(from, names.data(), names.size());
  std::string_view rest(names.data(), static_cast<std::size_t>(std::max<ssize_t>(listed, 0)));
  while (!rest.empty()) {
    const std::string name(rest.substr(0, rest.find('\0')));
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    std::vector<char> value(static_cast<std::size_t>(std::max<ssize_t>(fgetxattr(from, name.c_str(), nullptr, 0), 0)));
    if (fgetxattr(from, name.c_str(), value.data(), value.size()) == static_cast<ssize_t>(value.size())) {
      fsetxattr(to, name.c_str(), value.data(), value.size(), 0);
    }
  }
}

}  // namespace

bool copyRights(int from, int to) {
  struct stat old{};
  if (fstat(from, &old) != 0) {
    return false;
  }
  mode_t mode = old.st_mode & ALLPERMS;
  if (fchown(to, old.st_uid, old.st_gid) != 0) {
    mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    if (fchown(to, static_cast<uid_t>(-1), old.st_gid) != 0) {
      mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3);
    }
  }
  copyExtendedAttributes(from, to);
  return fchmod(to, mode) == 0;
}

}  // namespace quillhue
