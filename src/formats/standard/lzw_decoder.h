#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "formats/byte_source.h"

namespace quillhue {

/// Decodes the pixels of a GIF image in order. CompuServe, "Graphics Interchange Format, Version 89a", appendix F:
/// codes of growing length, the lowest bit first, in blocks, each preceded by its length.
class LzwDecoder {
 public:
  /// `offset` is that of the minimum code size.
  LzwDecoder(ByteSource& source, std::uint64_t offset);

  /// Fills `out` with the next pixels. Returns false if the data end too early or are damaged.
  [[nodiscard]] bool read(std::span<std::uint8_t> out);

 private:
  static constexpr unsigned kMaxLength = 12;
  static constexpr unsigned kMaxPixelLength = 8;
  static constexpr std::uint16_t kNone = 0xFFFF;

  // The pixels of a code: those of `prefix`, if any, and a last one.
  struct Entry {
    std::uint16_t prefix;
    std::uint8_t last;
  };

  void clear();
  // Returns the next code, or kNone at the end of the data.
  std::uint16_t nextCode();
  // Puts the pixels of the next code on the stack, the first one on top.
  bool decodeCode();
  // Puts the pixels of a known code on the stack, and returns the first one.
  std::uint8_t push(std::uint16_t code);

  ByteSource& source_;
  std::uint64_t at_;
  unsigned minimumLength_;
  std::uint32_t bytesInBlock_ = 0;
  std::uint32_t bits_ = 0;
  unsigned bitCount_ = 0;
  std::array<Entry, 1U << kMaxLength> table_{};
  std::uint16_t size_ = 0;
  unsigned length_ = 0;
  std::uint16_t previous_ = kNone;
  std::vector<std::uint8_t> stack_;
};

}  // namespace quillhue
