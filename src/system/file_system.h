#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace quillhue {

/// A file open for reading. The destructor closes it.
class InputFile {
 public:
  InputFile() = default;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  virtual ~InputFile() = default;

  /// Returns the size of a regular file in bytes, or nothing for a pipe or a device.
  [[nodiscard]] virtual std::optional<std::uint64_t> size() const = 0;
  /// Fills `out` and returns the number of bytes read, which is less than the size of `out` only at the end. Returns
  /// nothing if the medium fails. `offset` counts from the start of a regular file. Pipes and devices are read
  /// sequentially and ignore it.
  [[nodiscard]] virtual std::optional<std::size_t> read(std::uint64_t offset, std::span<std::uint8_t> out) = 0;
};

enum class SaveError : std::uint8_t {
  /// The file can't be replaced with a new one, but overwriting it may work.
  notReplaceable,
  failed,
};

/// A file open for writing from its start. finish() makes it take effect. Without finish(), the destructor removes
/// everything created for it.
class OutputFile {
 public:
  OutputFile() = default;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  virtual ~OutputFile() = default;

  /// Appends all of `content`. Returns false if the medium refuses any part of it.
  [[nodiscard]] virtual bool write(std::span<const std::uint8_t> content) = 0;
  /// Waits until the medium holds the written bytes. Returns false on failure.
  [[nodiscard]] virtual bool flush() = 0;
  [[nodiscard]] virtual std::expected<void, SaveError> finish() = 0;
};

/// The system's files. Names are absolute or relative to the current folder, of any length that the system allows.
class FileSystem {
 public:
  using Output = std::expected<std::unique_ptr<OutputFile>, SaveError>;

  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  /// Returns false only if there is no such file. A file that can't be examined counts as existing.
  [[nodiscard]] virtual bool exists(const std::wstring& name) = 0;

  /// Opens a file for reading. If the system supports it, other programs may read but not write the file meanwhile.
  /// Returns null for a folder and for anything that can't be read.
  [[nodiscard]] virtual std::unique_ptr<InputFile> open(const std::wstring& name) = 0;

  /// Creates a temporary file in the folder of the target: the file `name`, or the file that a link of this name leads
  /// to. finish() replaces the target in one step and keeps its rights and attributes. Refuses a target that exists and
  /// can't be written and, if the system supports it, one that is open elsewhere.
  [[nodiscard]] virtual Output createReplacement(const std::wstring& name) = 0;

  /// Opens an existing file to overwrite it. Reserves room for `size` bytes first, so that a full disk leaves the file
  /// unchanged. finish() cuts the file to the bytes written. Pipes and devices simply take the bytes.
  [[nodiscard]] virtual Output overwrite(const std::wstring& name, std::uint64_t size) = 0;
};

/// Returns the files of the system on which the program runs.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace quillhue
