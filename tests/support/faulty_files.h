#pragma once

#include <memory>
#include <string>
#include <utility>

#include "system/file_system.h"

namespace quillhue {

/// The system's files with calls that fail. The calls of saving are counted from 0: creating or opening, and each
/// write, flush and finish. `count` of them fail from `first` on.
class FaultyFiles final : public FileSystem {
 public:
  explicit FaultyFiles(int first, int count = 1, SaveError error = SaveError::failed)
      : first_(first), end_(first + count), error_(error) {}

  [[nodiscard]] int calls() const { return calls_; }

  bool exists(const std::wstring& name) override { return systemFiles().exists(name); }
  std::unique_ptr<InputFile> open(const std::wstring& name) override { return systemFiles().open(name); }
  Output createReplacement(const std::wstring& name) override {
    return fails() ? std::unexpected(error_) : wrap(systemFiles().createReplacement(name));
  }
  Output overwrite(const std::wstring& name, std::uint64_t size) override {
    return fails() ? std::unexpected(error_) : wrap(systemFiles().overwrite(name, size));
  }

 private:
  class FaultyOutput final : public OutputFile {
   public:
    FaultyOutput(std::unique_ptr<OutputFile> file, FaultyFiles& files) : file_(std::move(file)), files_(files) {}

    bool write(std::span<const std::uint8_t> content) override {
      const bool fails = files_.fails();
      return file_->write(fails ? content.first(content.size() / 2) : content) && !fails;
    }
    bool flush() override { return !files_.fails() && file_->flush(); }
    std::expected<void, SaveError> finish() override {
      return files_.fails() ? std::unexpected(files_.error_) : file_->finish();
    }

   private:
    std::unique_ptr<OutputFile> file_;
    FaultyFiles& files_;
  };

  bool fails() {
    const int call = calls_++;
    return call >= first_ && call < end_;
  }
  Output wrap(Output file) { return file ? std::make_unique<FaultyOutput>(std::move(*file), *this) : std::move(file); }

  int first_;
  int end_;
  SaveError error_;
  int calls_ = 0;
};

}  // namespace quillhue
