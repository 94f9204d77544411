#include "formats/text_lines.h"

namespace quillhue {

TextLines::TextLines(ByteSource& source) : source_(source) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (matchTag(source, 0, kByteOrderMark)) {
    offset_ = kByteOrderMark.size();
  }
}

std::optional<std::string_view> TextLines::next() {
  if (atEnd()) {
    return std::nullopt;
  }
  line_.clear();
  for (; !atEnd() && source_.u8(offset_) != '\n'; ++offset_) {
    if (line_.size() < kMaxLength) {
      line_ += static_cast<char>(source_.u8(offset_));
    }
  }
  ++offset_;
  if (line_.ends_with('\r')) {
    line_.pop_back();
  }
  return line_;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace quillhue
