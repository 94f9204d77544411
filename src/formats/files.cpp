#include "formats/files.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <ios>
#include <new>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/utf8.h"

namespace quillhue {

namespace {

constexpr std::size_t kStreamLimit = std::size_t{1} << 31;

/// A regular file. The handle is unbuffered: callers ask for blocks.
class FileSource final : public ByteSource {
 public:
  FileSource(std::filebuf file, std::uint64_t size) : ByteSource(size), file_(std::move(file)) {}

 private:
  std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) override try {
    const auto start = static_cast<std::streamoff>(offset);
    if (file_.pubseekpos(std::streampos(start), std::ios::in) != std::streampos(start)) {
      return 0;
    }
    // The stream's bytes are chars; this is the one place where they become unsigned.
    const auto got = file_.sgetn(reinterpret_cast<char*>(out.data()), static_cast<std::streamsize>(out.size()));
    return static_cast<std::size_t>(std::max<std::streamsize>(got, 0));
  } catch (const std::ios_base::failure&) {
    // How the library tells of an error of the medium, where it does not end the file early.
    return 0;
  }

  std::filebuf file_;
};

constexpr bool kWidePaths = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

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
  const std::filesystem::path path = toPath(name);
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (error || std::filesystem::is_directory(status)) {
    return std::unexpected(Failure::couldNotOpen);
  }
  std::filebuf file;
  file.pubsetbuf(nullptr, 0);
  if (file.open(path, std::ios::in | std::ios::binary) == nullptr) {
    return std::unexpected(Failure::couldNotOpen);
  }
  if (!std::filesystem::is_regular_file(status)) {
    std::istream stream(&file);
    return readStream(stream);
  }
  const auto end = file.pubseekoff(0, std::ios::end, std::ios::in);
  if (end == std::streampos(-1)) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return std::make_unique<FileSource>(std::move(file), static_cast<std::uint64_t>(std::streamoff(end)));
}

std::expected<std::unique_ptr<ByteSource>, Failure> readStream(std::istream& stream) try {
  constexpr std::size_t kStep = std::size_t{1} << 16;
  std::vector<std::uint8_t> content;
  while (stream) {
    const std::size_t filled = content.size();
    if (filled >= kStreamLimit) {
      return std::unexpected(Failure::couldNotOpen);
    }
    content.resize(filled + kStep);
    stream.read(reinterpret_cast<char*>(content.data() + filled), kStep);
    content.resize(filled + static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return std::make_unique<MemorySource>(std::move(content));
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

bool writeFile(std::wstring_view name, std::span<const std::uint8_t> content) {
  std::ofstream file(toPath(name), std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
  file.close();
  return !file.fail();
}

bool fileExists(std::wstring_view name) {
  std::error_code error;
  return std::filesystem::exists(toPath(name), error);
}

}  // namespace quillhue
