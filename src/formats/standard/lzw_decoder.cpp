#include "formats/standard/lzw_decoder.h"

#include <algorithm>

namespace quillhue {

LzwDecoder::LzwDecoder(ByteSource& source, std::uint64_t offset)
    : source_(source), at_(offset + 1), minimumLength_(std::min<unsigned>(source.u8(offset), kMaxPixelLength + 1)) {
  clear();
}

bool LzwDecoder::read(std::span<std::uint8_t> out) {
  if (minimumLength_ < 1 || minimumLength_ > kMaxPixelLength) {
    return false;
  }
  for (std::uint8_t& pixel : out) {
    while (stack_.empty()) {
      if (!decodeCode()) {
        return false;
      }
    }
    pixel = stack_.back();
    stack_.pop_back();
  }
  return true;
}

void LzwDecoder::clear() {
  // The first codes are the pixels themselves, then the code that clears the table, then the end.
  size_ = static_cast<std::uint16_t>((1U << minimumLength_) + 2);
  length_ = minimumLength_ + 1;
  previous_ = kNone;
}

std::uint16_t LzwDecoder::nextCode() {
  while (bitCount_ < length_) {
    if (bytesInBlock_ == 0) {
      bytesInBlock_ = source_.u8(at_++);
    }
    if (bytesInBlock_ == 0 || at_ >= source_.size()) {
      return kNone;
    }
    bits_ |= static_cast<std::uint32_t>(source_.u8(at_++)) << bitCount_;
    bitCount_ += 8;
    --bytesInBlock_;
  }
  const auto code = static_cast<std::uint16_t>(bits_ & ((1U << length_) - 1));
  bits_ >>= length_;
  bitCount_ -= length_;
  return code;
}

bool LzwDecoder::decodeCode() {
  const auto clearCode = static_cast<std::uint16_t>(1U << minimumLength_);
  const std::uint16_t code = nextCode();
  if (code == clearCode) {
    clear();
    return true;
  }
  const bool isPixel = code < clearCode;
  if (code == clearCode + 1 || code > size_ || (!isPixel && previous_ == kNone)) {
    return false;
  }
  std::uint8_t first = 0;
  if (code == size_) {
    // The only code that may be used before it is defined: the previous pixels, followed by their first one.
    stack_.push_back(0);
    first = push(previous_);
    stack_.front() = first;
  } else {
    first = push(code);
  }
  if (previous_ != kNone && size_ < table_.size()) {
    table_[size_++] = {previous_, first};
    if (size_ == 1U << length_ && length_ < kMaxLength) {
      ++length_;
    }
  }
  previous_ = code;
  return true;
}

std::uint8_t LzwDecoder::push(std::uint16_t code) {
  while (code >= 1U << minimumLength_) {
    stack_.push_back(table_[code].last);
    code = table_[code].prefix;
  }
  stack_.push_back(static_cast<std::uint8_t>(code));
  return stack_.back();
}

}  // namespace quillhue
