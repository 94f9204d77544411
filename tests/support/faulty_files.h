#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "system/file_system.h"

namespace quillhue {

/// The fault of one of the calls that save a file. After a power cut all later calls fail, nothing is removed, and
/// bytes that were not flushed never reach the disk.
enum class Fault { failed, notReplaceable, powerCut };

/// The system's files, with a fault in call number `at`. Call 0 creates or opens a file; each write, flush and finish
/// then counts as a call.
class FaultyFiles final : public FileSystem {
 public:
  FaultyFiles(Fault fault, int at) : fault_(fault), at_(at) {}

  [[nodiscard]] int calls() const { return calls_; }

  bool exists(const std::wstring& name) override { return systemFiles().exists(name); }
  std::unique_ptr<InputFile> open(const std::wstring& name) override { return systemFiles().open(name); }
  Output createReplacement(const std::wstring& name) override {
    return fails() ? std::unexpected(error()) : wrap(systemFiles().createReplacement(name));
  }
  Output overwrite(const std::wstring& name, std::uint64_t size) override {
    return fails() ? std::unexpected(error()) : wrap(systemFiles().overwrite(name, size));
  }

 private:
  struct FaultyOutput final : OutputFile {
    FaultyOutput(std::unique_ptr<OutputFile> opened, FaultyFiles& all) : file(std::move(opened)), files(all) {}
    FaultyOutput(const FaultyOutput&) = delete;
    FaultyOutput& operator=(const FaultyOutput&) = delete;
    ~FaultyOutput() override {
      if (files.fault_ == Fault::powerCut) {
        files.left_.push_back(std::move(file));
      }
    }
    bool write(std::span<const std::uint8_t> content) override {
      unflushed.insert(unflushed.end(), content.begin(), content.end());
      return !files.fails();
    }
    bool flush() override { return !files.fails() && file->write(std::exchange(unflushed, {})) && file->flush(); }
    std::expected<void, SaveError> finish() override {
      return files.fails() ? std::unexpected(files.error()) : file->finish();
    }

    std::unique_ptr<OutputFile> file;
    FaultyFiles& files;
    std::vector<std::uint8_t> unflushed;
  };

  bool fails() {
    const int call = calls_++;
    return call == at_ || (fault_ == Fault::powerCut && call > at_);
  }
  [[nodiscard]] SaveError error() const {
    return fault_ == Fault::notReplaceable ? SaveError::notReplaceable : SaveError::failed;
  }
  Output wrap(Output file) { return file ? std::make_unique<FaultyOutput>(std::move(*file), *this) : std::move(file); }

  Fault fault_;
  int at_;
  int calls_ = 0;
  std::vector<std::unique_ptr<OutputFile>> left_;
};

}  // namespace quillhue
