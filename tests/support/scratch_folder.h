#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace quillhue {

/// A folder for the files of one test, removed with all that is in it.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("quillhue-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace quillhue
