#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace quillhue {

/// A file that is open for reading. Closing it is its destruction.
class InputFile {
 public:
  InputFile() = default;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  virtual ~InputFile() = default;

  /// Bytes of a regular file; nothing for a pipe or a device.
  [[nodiscard]] virtual std::optional<std::uint64_t> size() const = 0;
  /// Fills `out` and returns the number of bytes, which is less than `out` holds only at the end; nothing when the
  /// medium fails. `offset` counts from the start of a regular file. A pipe is read on and ignores it.
  [[nodiscard]] virtual std::optional<std::size_t> read(std::uint64_t offset, std::span<std::uint8_t> out) = 0;
};

enum class SaveError : std::uint8_t {
  /// The file can't be replaced by another one, but it can perhaps be written over.
  notReplaceable,
  failed,
};

/// A file that is open for writing from its start on. It takes effect with finish(); without that, its destruction
/// removes whatever was created for it.
class OutputFile {
 public:
  OutputFile() = default;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  virtual ~OutputFile() = default;

  /// Appends all of `content`; false when the medium refuses a part of it.
  [[nodiscard]] virtual bool write(std::span<const std::uint8_t> content) = 0;
  /// Waits until the medium holds what was written; false when it does not.
  [[nodiscard]] virtual bool flush() = 0;
  [[nodiscard]] virtual std::expected<void, SaveError> finish() = 0;
};

/// The system's files. Names are absolute or relative to the current folder, and as long as the system allows.
class FileSystem {
 public:
  using Output = std::expected<std::unique_ptr<OutputFile>, SaveError>;

  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  /// False only when there is no such file. One that can't be examined exists.
  [[nodiscard]] virtual bool exists(const std::wstring& name) = 0;

  /// Opens a file; where the system can, others may read it meanwhile and not write it. Returns null for a folder and
  /// for anything that can't be read.
  [[nodiscard]] virtual std::unique_ptr<InputFile> open(const std::wstring& name) = 0;

  /// Creates a file with a name of its own in the folder of `name`, or of the file that a link of this name leads to.
  /// finish() puts it in the place of that file in one step, with the old file's rights and attributes. Refuses a file
  /// that exists and can't be written, and where the system can, one that is open elsewhere.
  [[nodiscard]] virtual Output createReplacement(const std::wstring& name) = 0;

  /// Opens a file that exists to write over it, and makes room for `size` bytes first, so that a full disk leaves it as
  /// it was. finish() cuts it to what was written. Pipes and devices just take the bytes.
  [[nodiscard]] virtual Output overwrite(const std::wstring& name, std::uint64_t size) = 0;
};

/// The files of the system on which the program runs.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace quillhue
