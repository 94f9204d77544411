#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>

#include "formats/files.h"
#include "support/palettes.h"

namespace quillhue {

/// A folder for the files of one test. It is removed with all its content.
class ScratchFolder {
 public:
  ScratchFolder()
      : path_(std::filesystem::temp_directory_path() / ("quillhue-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directory(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// Returns the full name of a file in the folder or, without a name, of the folder.
  [[nodiscard]] std::wstring name(const std::filesystem::path& file = {}) const {
    return toFileName(file.empty() ? path_ : path_ / file);
  }
  /// Writes a file and returns its full name.
  [[nodiscard]] std::wstring file(const std::filesystem::path& file, const Bytes& content) const {
    std::ofstream stream(path_ / file, std::ios::binary);
    stream << std::string(content.begin(), content.end()) << std::flush;
    return stream ? name(file) : throw std::system_error();
  }
  [[nodiscard]] std::string contentOf(const std::filesystem::path& file) const {
    const auto source = openFile(name(file)).value();
    const Bytes bytes = source->bytes(0, static_cast<std::size_t>(source->size()));
    return {bytes.begin(), bytes.end()};
  }
  /// The files in the folder.
  [[nodiscard]] std::ptrdiff_t count() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

 private:
  std::filesystem::path path_;
};

}  // namespace quillhue
