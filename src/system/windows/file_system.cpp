#include "system/file_system.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "core/utf8.h"
#include "system/temporary_name.h"

namespace quillhue {

namespace {

struct HandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FileHandle = std::unique_ptr<void, HandleCloser>;

// Maximum number of bytes that one call reads or writes.
constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;

constexpr DWORD kSharedWithNobody = 0;
constexpr DWORD kSharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

FileHandle openHandle(const std::wstring& name, DWORD access, DWORD sharing, DWORD disposition,
                      DWORD flags = FILE_ATTRIBUTE_NORMAL) {
  const HANDLE handle = CreateFileW(name.c_str(), access, sharing, nullptr, disposition, flags, nullptr);
  return FileHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

bool isStored(const FileHandle& file) { return GetFileType(file.get()) == FILE_TYPE_DISK; }

class WindowsInput final : public InputFile {
 public:
  WindowsInput(FileHandle file, std::optional<std::uint64_t> size) : file_(std::move(file)), size_(size) {}

  [[nodiscard]] std::optional<std::uint64_t> size() const override { return size_; }

  std::optional<std::size_t> read(std::uint64_t offset, std::span<std::uint8_t> out) override {
    std::size_t filled = 0;
    while (filled < out.size()) {
      OVERLAPPED place{};
      place.Offset = static_cast<DWORD>(offset + filled);
      place.OffsetHigh = static_cast<DWORD>((offset + filled) >> 32);
      const auto wanted = static_cast<DWORD>(std::min(out.size() - filled, kMaxTransfer));
      DWORD got = 0;
      if (ReadFile(file_.get(), out.data() + filled, wanted, &got, size_ ? &place : nullptr) == 0) {
        // A broken pipe is at its end: the writer has closed it.
        if (GetLastError() != ERROR_HANDLE_EOF && GetLastError() != ERROR_BROKEN_PIPE) {
          return std::nullopt;
        }
        got = 0;
      }
      if (got == 0) {
        break;
      }
      filled += got;
    }
    return filled;
  }

 private:
  FileHandle file_;
  std::optional<std::uint64_t> size_;
};

class WindowsOutput : public OutputFile {
 public:
  explicit WindowsOutput(FileHandle file) : file_(std::move(file)) {}

  bool write(std::span<const std::uint8_t> content) override {
    while (!content.empty()) {
      DWORD put = 0;
      const auto wanted = static_cast<DWORD>(std::min(content.size(), kMaxTransfer));
      if (WriteFile(file_.get(), content.data(), wanted, &put, nullptr) == 0 || put == 0) {
        return false;
      }
      content = content.subspan(put);
    }
    return true;
  }

  // Flushing a pipe would wait for its reader.
  bool flush() override { return !isStored(file_) || FlushFileBuffers(file_.get()) != 0; }

 protected:
  [[nodiscard]] FileHandle& file() { return file_; }

 private:
  FileHandle file_;
};

SaveError saveErrorOf(DWORD error) {
  constexpr std::array<DWORD, 3> kNotReplaceable{ERROR_ACCESS_DENIED, ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED};
  return std::ranges::find(kNotReplaceable, error) != kNotReplaceable.end() ? SaveError::notReplaceable
                                                                            : SaveError::failed;
}

class Replacement final : public WindowsOutput {
 public:
  /// Creates the file `temporary` with these attributes. isOpen() is false on failure.
  Replacement(std::wstring temporary, std::wstring target, bool replaces, DWORD attributes)
      : WindowsOutput(openHandle(temporary, GENERIC_WRITE, kSharedWithNobody, CREATE_NEW, attributes)),
        temporary_(std::move(temporary)),
        target_(std::move(target)),
        replaces_(replaces) {}
  ~Replacement() override {
    if (isCreated_ && !temporary_.empty()) {
      file().reset();
      DeleteFileW(temporary_.c_str());
    }
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  [[nodiscard]] bool isOpen() const { return isCreated_; }

  std::expected<void, SaveError> finish() override {
    file().reset();
    if (!(replaces_ ? replace() : move())) {
      return std::unexpected(saveErrorOf(GetLastError()));
    }
    temporary_.clear();
    return {};
  }

 private:
  bool move() { return MoveFileExW(temporary_.c_str(), target_.c_str(), MOVEFILE_WRITE_THROUGH) != 0; }

  bool replace() {
    if (ReplaceFileW(target_.c_str(), temporary_.c_str(), nullptr, 0, nullptr, nullptr) != 0) {
      return true;
    }
    if (GetLastError() != ERROR_UNABLE_TO_MOVE_REPLACEMENT) {
      return false;
    }
    // The old file is already gone. If the new one can't be renamed either, it is kept.
    if (!move()) {
      temporary_.clear();
      return false;
    }
    return true;
  }

  std::wstring temporary_;
  std::wstring target_;
  bool replaces_;
  bool isCreated_ = static_cast<bool>(file());
};

class Overwriting final : public WindowsOutput {
 public:
  using WindowsOutput::WindowsOutput;

  std::expected<void, SaveError> finish() override {
    if (isStored(file()) && SetEndOfFile(file().get()) == 0) {
      return std::unexpected(SaveError::failed);
    }
    return {};
  }
};

// Lengthens a file shorter than `size`. The file pointer stays at the start.
bool makeRoom(HANDLE file, std::uint64_t size) {
  LARGE_INTEGER length{};
  LARGE_INTEGER wanted{};
  wanted.QuadPart = static_cast<LONGLONG>(size);
  if (GetFileSizeEx(file, &length) == 0) {
    return false;
  }
  return length.QuadPart >= wanted.QuadPart ||
         (SetFilePointerEx(file, wanted, nullptr, FILE_BEGIN) != 0 && SetEndOfFile(file) != 0 &&
          SetFilePointerEx(file, {}, nullptr, FILE_BEGIN) != 0);
}

// Returns the full name in the form without a length limit. Names of devices such as NUL keep their form.
std::wstring fullName(const std::wstring& name) {
  std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  if (full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)")) {
    return full;
  }
  return full.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

bool isDevice(const std::wstring& fullName) { return fullName.starts_with(LR"(\\.\)"); }

// Returns the file to which the links of this name lead. Returns nothing if it does not exist or its disk does not
// report a name.
std::optional<std::wstring> followLinks(const std::wstring& name) {
  const FileHandle file = openHandle(name, 0, kSharedWithAll, OPEN_EXISTING);
  std::wstring target(GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  target.resize(
      GetFinalPathNameByHandleW(file.get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED));
  return target.empty() ? std::nullopt : std::optional(target);
}

class WindowsFiles final : public FileSystem {
 public:
  bool exists(const std::wstring& name) override {
    return GetFileAttributesW(fullName(name).c_str()) != INVALID_FILE_ATTRIBUTES ||
           GetLastError() == ERROR_ACCESS_DENIED || GetLastError() == ERROR_SHARING_VIOLATION;
  }

  std::unique_ptr<InputFile> open(const std::wstring& name) override {
    FileHandle file = openHandle(fullName(name), GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    std::optional<std::uint64_t> size;
    LARGE_INTEGER length{};
    if (file && isStored(file)) {
      if (GetFileSizeEx(file.get(), &length) == 0) {
        return nullptr;
      }
      size = static_cast<std::uint64_t>(length.QuadPart);
    }
    return file ? std::make_unique<WindowsInput>(std::move(file), size) : nullptr;
  }

  Output createReplacement(const std::wstring& name) override {
    std::wstring target = fullName(name);
    if (isDevice(target)) {
      return std::unexpected(SaveError::notReplaceable);
    }
    const DWORD attributes = GetFileAttributesW(target.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists) {
      // Every file is checked, because under Wine a link of the host looks like a regular file.
      auto linked = followLinks(target);
      if (!linked && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return std::unexpected(SaveError::notReplaceable);
      }
      target = std::move(linked).value_or(target);
    }
    const bool isReadOnly = exists && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (isReadOnly || (exists && !openHandle(target, GENERIC_WRITE, kSharedWithNobody, OPEN_EXISTING))) {
      return std::unexpected(SaveError::failed);
    }
    std::wstring temporary = target.substr(0, target.rfind(L'\\') + 1) + fromUtf8(temporaryName());
    // ReplaceFileW keeps the old file's attributes, but Wine's version keeps the new file's.
    const DWORD kept = exists ? attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM) : FILE_ATTRIBUTE_NORMAL;
    auto replacement = std::make_unique<Replacement>(std::move(temporary), std::move(target), exists, kept);
    if (!replacement->isOpen()) {
      return std::unexpected(saveErrorOf(GetLastError()));
    }
    return replacement;
  }

  Output overwrite(const std::wstring& name, std::uint64_t size) override {
    FileHandle file = openHandle(fullName(name), GENERIC_WRITE, kSharedWithNobody, OPEN_EXISTING);
    if (!file) {
      return std::unexpected(SaveError::failed);
    }
    const HANDLE handle = file.get();
    const bool isRegular = isStored(file);
    auto output = std::make_unique<Overwriting>(std::move(file));
    if (isRegular && !makeRoom(handle, size)) {
      return std::unexpected(SaveError::failed);
    }
    return output;
  }
};

}  // namespace

FileSystem& systemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace quillhue
