#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "formats/byte_source.h"

namespace quillhue {

/// Decodes the pixels of a PCX image. A byte of 192 or more contains in its low six bits the number of times that the
/// next byte is repeated. Runs may continue in the next row.
class PcxRuns {
 public:
  PcxRuns(ByteSource& source, std::uint64_t start) : source_(source), next_(start) {}

  /// Fills `out` with the next bytes. Returns how many there were, which is less than the size of `out` only at the end
  /// of the file.
  std::size_t decode(std::span<std::uint8_t> out);

 private:
  static constexpr std::size_t kBlock = std::size_t{1} << 15;

  // Decodes bytes while the block has enough of them and `out` enough room. Returns their number.
  std::size_t decodeInside(std::span<std::uint8_t> out);
  // Begins a run. Returns false at the end of the file.
  bool begin();
  bool isAtEnd();
  std::uint8_t take();

  ByteSource& source_;
  // The offset behind the block.
  std::uint64_t next_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::size_t repeats_ = 0;
  std::uint8_t value_ = 0;
  std::array<std::uint8_t, kBlock> block_;
};

}  // namespace quillhue
