#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/byte_source.h"

namespace quillhue {

/// The lines of a text file. They end with LF or CR LF. A UTF-8 byte order mark at the start of the file is skipped.
class TextLines {
 public:
  explicit TextLines(ByteSource& source);

  /// Returns the next line without its line end, cut to kMaxLength bytes and valid until the next call; empty after the
  /// last line.
  [[nodiscard]] std::optional<std::string_view> next();
  /// Offset of the next line.
  [[nodiscard]] std::uint64_t offset() const { return offset_; }
  [[nodiscard]] bool atEnd() const { return offset_ >= source_.size(); }

  static constexpr std::size_t kMaxLength = 4096;

 private:
  ByteSource& source_;
  std::uint64_t offset_ = 0;
  std::string line_;
};

/// Returns `text` without the blanks, tabs and carriage returns at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

}  // namespace quillhue
