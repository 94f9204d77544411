#include "system/file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <utility>

#include "core/utf8.h"
#include "system/posix/file_rights.h"
#include "system/temporary_name.h"

namespace quillhue {

namespace {

// Repeats a call that a signal interrupted.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) {
    result = call();
  }
  return result;
}

class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (value_ != -1) {
      close(value_);
    }
  }
  [[nodiscard]] int get() const { return value_; }
  [[nodiscard]] explicit operator bool() const { return value_ != -1; }

 private:
  int value_;
};

Descriptor openAt(int folder, const char* name, int flags, mode_t mode = 0) {
  return Descriptor(uninterrupted([&] { return openat(folder, name, flags | O_CLOEXEC | O_NOCTTY, mode); }));
}

Descriptor openPath(const std::string& name, int flags) { return openAt(AT_FDCWD, name.c_str(), flags); }

class PosixInput final : public InputFile {
 public:
  PosixInput(Descriptor file, std::optional<std::uint64_t> size) : file_(std::move(file)), size_(size) {}

  [[nodiscard]] std::optional<std::uint64_t> size() const override { return size_; }

  std::optional<std::size_t> read(std::uint64_t offset, std::span<std::uint8_t> out) override {
    std::size_t filled = 0;
    while (filled < out.size()) {
      const auto rest = out.subspan(filled);
      const ssize_t got = uninterrupted([&] {
        return size_ ? pread(file_.get(), rest.data(), rest.size(), static_cast<off_t>(offset + filled))
                     : ::read(file_.get(), rest.data(), rest.size());
      });
      if (got < 0) {
        return std::nullopt;
      }
      if (got == 0) {
        break;
      }
      filled += static_cast<std::size_t>(got);
    }
    return filled;
  }

 private:
  Descriptor file_;
  std::optional<std::uint64_t> size_;
};

class PosixOutput : public OutputFile {
 public:
  explicit PosixOutput(Descriptor file) : file_(std::move(file)) {}

  bool write(std::span<const std::uint8_t> content) override {
    while (!content.empty()) {
      const ssize_t put = uninterrupted([&] { return ::write(file_.get(), content.data(), content.size()); });
      if (put <= 0) {
        return false;
      }
      content = content.subspan(static_cast<std::size_t>(put));
    }
    return true;
  }

  bool flush() override {
    // Pipes, devices and some network drives can't be flushed and report EINVAL or ENOSYS.
    isFlushed_ = uninterrupted([&] { return fsync(file_.get()); }) == 0 || errno == EINVAL || errno == ENOSYS;
    return isFlushed_;
  }

 protected:
  [[nodiscard]] const Descriptor& file() const { return file_; }
  [[nodiscard]] bool isFlushed() const { return isFlushed_; }

 private:
  Descriptor file_;
  bool isFlushed_ = false;
};

SaveError saveErrorOf(int error) {
  constexpr std::array kNotReplaceable{EACCES, EPERM, EROFS, EBUSY, ENAMETOOLONG};
  return std::ranges::find(kNotReplaceable, error) != kNotReplaceable.end() ? SaveError::notReplaceable
                                                                            : SaveError::failed;
}

/// A new file in a folder. The folder is kept open, so it may be moved meanwhile and its own name may be long.
class Replacement final : public PosixOutput {
 public:
  /// Creates the file, with these rights. isOpen() is false on failure, and errno has the reason.
  Replacement(Descriptor folder, std::string temporary, std::string target, mode_t rights)
      : PosixOutput(openAt(folder.get(), temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL, rights)),
        folder_(std::move(folder)),
        temporary_(std::move(temporary)),
        target_(std::move(target)) {}
  ~Replacement() override {
    if (isOpen() && !temporary_.empty()) {
      unlinkat(folder_.get(), temporary_.c_str(), 0);
    }
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  [[nodiscard]] bool isOpen() const { return static_cast<bool>(file()); }
  [[nodiscard]] bool takeRights(const Descriptor& old) { return copyRights(old.get(), file().get()); }

  std::expected<void, SaveError> finish() override {
    if (renameat(folder_.get(), temporary_.c_str(), folder_.get(), target_.c_str()) != 0) {
      return std::unexpected(saveErrorOf(errno));
    }
    temporary_.clear();
    // Until the folder is flushed as well, a power cut may bring back the old file. A folder that can't be listed can't
    // be flushed.
    if (const Descriptor listed = openAt(folder_.get(), ".", O_RDONLY | O_DIRECTORY); listed && isFlushed()) {
      uninterrupted([&] { return fsync(listed.get()); });
    }
    return {};
  }

 private:
  Descriptor folder_;
  std::string temporary_;
  std::string target_;
};

class Overwriting final : public PosixOutput {
 public:
  Overwriting(Descriptor file, bool isRegular) : PosixOutput(std::move(file)), isRegular_(isRegular) {}

  std::expected<void, SaveError> finish() override {
    if (isRegular_ && ftruncate(file().get(), lseek(file().get(), 0, SEEK_CUR)) != 0) {
      return std::unexpected(SaveError::failed);
    }
    return {};
  }

 private:
  bool isRegular_;
};

// Returns the file to which the links of this name lead, whether it exists or not. Returns nothing for a cycle of
// links, and for links in /proc, which refer to open files rather than to names.
std::optional<std::filesystem::path> followLinks(std::filesystem::path path) {
  constexpr int kMaxLinks = 40;
  struct stat processes{};
  const bool hasProcesses = stat("/proc", &processes) == 0;
  for (int links = 0; links < kMaxLinks; ++links) {
    struct stat link{};
    if (lstat(path.c_str(), &link) != 0 || !S_ISLNK(link.st_mode)) {
      return path;
    }
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(path, error);
    if (error || (hasProcesses && link.st_dev == processes.st_dev)) {
      return std::nullopt;
    }
    path = path.parent_path() / target;
  }
  return std::nullopt;
}

class PosixFiles final : public FileSystem {
 public:
  bool exists(const std::wstring& name) override {
    struct stat status{};
    return stat(toUtf8(name).c_str(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG);
  }

  std::unique_ptr<InputFile> open(const std::wstring& name) override {
    Descriptor file = openPath(toUtf8(name), O_RDONLY);
    struct stat status{};
    if (!file || fstat(file.get(), &status) != 0 || S_ISDIR(status.st_mode)) {
      return nullptr;
    }
    std::optional<std::uint64_t> size;
    if (S_ISREG(status.st_mode)) {
      size = static_cast<std::uint64_t>(status.st_size);
    }
    return std::make_unique<PosixInput>(std::move(file), size);
  }

  Output createReplacement(const std::wstring& name) override {
    struct stat status{};
    const std::string path = toUtf8(name);
    const bool exists = stat(path.c_str(), &status) == 0;
    const auto target = followLinks(path);
    if (!target || (exists && !S_ISREG(status.st_mode))) {
      return std::unexpected(SaveError::notReplaceable);
    }
    const Descriptor old = openPath(target->string(), O_WRONLY);
    if (exists != static_cast<bool>(old)) {
      return std::unexpected(SaveError::failed);
    }
    const std::string folderName = target->has_parent_path() ? target->parent_path().string() : ".";
    Descriptor folder = openPath(folderName, O_PATH | O_DIRECTORY);
    std::string temporary = temporaryName();
    // Nobody else may read the new file until it has the old file's rights.
    constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
    auto replacement = std::make_unique<Replacement>(std::move(folder), std::move(temporary),
                                                     target->filename().string(), old ? kPrivate : DEFFILEMODE);
    if (!replacement->isOpen()) {
      return std::unexpected(saveErrorOf(errno));
    }
    if (old && !replacement->takeRights(old)) {
      return std::unexpected(SaveError::notReplaceable);
    }
    return replacement;
  }

  Output overwrite(const std::wstring& name, std::uint64_t size) override {
    Descriptor file = openPath(toUtf8(name), O_WRONLY);
    struct stat old{};
    if (!file || fstat(file.get(), &old) != 0) {
      return std::unexpected(SaveError::failed);
    }
    const int descriptor = file.get();
    auto output = std::make_unique<Overwriting>(std::move(file), S_ISREG(old.st_mode));
    const auto wanted = static_cast<off_t>(size);
    if (S_ISREG(old.st_mode) && wanted > old.st_size &&
        posix_fallocate(descriptor, old.st_size, wanted - old.st_size) != 0) {
      std::ignore = ftruncate(descriptor, old.st_size);
      return std::unexpected(SaveError::failed);
    }
    return output;
  }
};

}  // namespace

FileSystem& systemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace quillhue
