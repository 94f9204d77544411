#include "formats/files.h"

#include <cstddef>
#include <ios>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/utf8.h"

namespace quillhue {

namespace {

constexpr std::size_t kStreamLimit = std::size_t{1} << 31;

/// A regular file. Callers read in blocks, so this adds no buffer.
class FileSource final : public ByteSource {
 public:
  FileSource(std::unique_ptr<InputFile> file, std::uint64_t size) : ByteSource(size), file_(std::move(file)) {}

 private:
  std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) override {
    return file_->read(offset, out).value_or(0);
  }

  std::unique_ptr<InputFile> file_;
};

// Reads to the end. `read` fills a block and returns the number of bytes, less than a block only at the end, or nothing
// when the medium fails.
template <typename Read>
std::expected<std::unique_ptr<ByteSource>, Failure> readWhole(Read read) try {
  constexpr std::size_t kStep = std::size_t{1} << 16;
  std::vector<std::uint8_t> content;
  for (std::size_t filled = 0; filled <= kStreamLimit;) {
    content.resize(filled + kStep);
    const std::optional<std::size_t> got = read(std::span(content).subspan(filled));
    if (!got) {
      break;
    }
    filled += *got;
    if (*got < kStep && filled <= kStreamLimit) {
      content.resize(filled);
      return std::make_unique<MemorySource>(std::move(content));
    }
  }
  return std::unexpected(Failure::couldNotOpen);
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

constexpr bool kWidePaths = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

std::expected<void, SaveError> writeInto(const FileSystem::Output& output, std::span<const std::uint8_t> content,
                                         bool flushes) {
  if (!output) {
    return std::unexpected(output.error());
  }
  if (!(*output)->write(content) || (flushes && !(*output)->flush())) {
    return std::unexpected(SaveError::failed);
  }
  return (*output)->finish();
}

}  // namespace

std::filesystem::path toPath(std::wstring_view name) {
  if constexpr (kWidePaths) {
    return {name};
  } else {
    return {toUtf8(name)};
  }
}

std::wstring toFileName(const std::filesystem::path& path) {
  if constexpr (kWidePaths) {
    return path.wstring();
  } else {
    return fromUtf8(path.string());
  }
}

std::expected<std::unique_ptr<ByteSource>, Failure> openFile(std::wstring_view name) {
  auto file = systemFiles().open(std::wstring(name));
  if (!file) {
    return std::unexpected(Failure::couldNotOpen);
  }
  if (const auto size = file->size()) {
    return std::make_unique<FileSource>(std::move(file), *size);
  }
  return readWhole([&](std::span<std::uint8_t> out) { return file->read(0, out); });
}

std::expected<std::unique_ptr<ByteSource>, Failure> readStream(std::istream& stream) {
  return readWhole([&](std::span<std::uint8_t> out) -> std::optional<std::size_t> {
    // The stream's bytes are chars. They become unsigned only here.
    stream.read(reinterpret_cast<char*>(out.data()), static_cast<std::streamsize>(out.size()));
    return stream.bad() ? std::nullopt : std::optional(static_cast<std::size_t>(stream.gcount()));
  });
}

bool writeFile(std::wstring_view name, std::span<const std::uint8_t> content, FileSystem& files) {
  const std::wstring file(name);
  // A new file need not be flushed: a power cut can't destroy an old one, and flushing a thousand files takes seconds.
  const bool replaces = files.exists(file);
  auto written = writeInto(files.createReplacement(file), content, replaces);
  if (!written && written.error() == SaveError::notReplaceable) {
    written = writeInto(files.overwrite(file, content.size()), content, replaces);
  }
  return written.has_value();
}

bool fileExists(std::wstring_view name) { return systemFiles().exists(std::wstring(name)); }

}  // namespace quillhue
