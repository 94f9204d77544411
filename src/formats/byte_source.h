#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace quillhue {

/// The bytes of a file, read at absolute offsets. Past the end every byte is zero, so no read can fail: a truncated
/// file gives the same result every time.
class ByteSource {
 public:
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;
  virtual ~ByteSource() = default;

  /// Size in bytes.
  [[nodiscard]] std::uint64_t size() const { return size_; }

  /// Little-endian (le) or big-endian (be) unsigned values.
  [[nodiscard]] std::uint8_t u8(std::uint64_t offset) {
    if (offset >= size_) {
      return 0;
    }
    loadBlock(offset);
    return block_[static_cast<std::size_t>(offset - blockStart_)];
  }
  [[nodiscard]] std::uint16_t u16le(std::uint64_t offset);
  [[nodiscard]] std::uint16_t u16be(std::uint64_t offset);
  [[nodiscard]] std::uint32_t u32le(std::uint64_t offset);
  [[nodiscard]] std::uint32_t u32be(std::uint64_t offset);

  /// Fills `out` with the bytes from `offset` on.
  void read(std::uint64_t offset, std::span<std::uint8_t> out);
  /// Returns `count` bytes. The caller limits the count.
  [[nodiscard]] std::vector<std::uint8_t> bytes(std::uint64_t offset, std::size_t count);

  /// Returns true if the medium delivered fewer bytes than its announced size. The bytes read are then not the file's.
  [[nodiscard]] bool failed() const { return failed_; }

 protected:
  explicit ByteSource(std::uint64_t size) : size_(size) {}

 private:
  /// Reads into `out`, which lies within the size. Returns the number of bytes read, which is smaller only when the
  /// medium fails.
  virtual std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) = 0;
  // Fills `out` from the medium, with zeros past the end.
  void fetch(std::uint64_t offset, std::span<std::uint8_t> out);
  // Makes sure that the block contains `offset`, which lies within the size.
  void loadBlock(std::uint64_t offset) {
    if (offset - blockStart_ >= blockLength_) {
      blockStart_ = offset - offset % kBlockSize;
      blockLength_ = static_cast<std::size_t>(std::min<std::uint64_t>(kBlockSize, size_ - blockStart_));
      fetch(blockStart_, std::span(block_).first(blockLength_));
    }
  }

  static constexpr std::size_t kBlockSize = 16384;
  // Reads of this size and more bypass the block.
  static constexpr std::size_t kDirectSize = 4096;

  std::uint64_t size_;
  bool failed_ = false;
  std::uint64_t blockStart_ = 0;
  std::size_t blockLength_ = 0;
  // Only the first blockLength_ bytes have a value.
  std::array<std::uint8_t, kBlockSize> block_;
};

/// Bytes in memory.
class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::vector<std::uint8_t> content) : ByteSource(content.size()), content_(std::move(content)) {}

 private:
  std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) override;

  std::vector<std::uint8_t> content_;
};

/// True when the bytes at `offset` are exactly those of `tag`.
[[nodiscard]] bool matchTag(ByteSource& source, std::uint64_t offset, std::string_view tag);

/// Returns the offset of the first `tag` at or after `from`, or the file's size when there is none. The tag contains no
/// zero byte.
[[nodiscard]] std::uint64_t findTag(ByteSource& source, std::uint64_t from, std::string_view tag);

}  // namespace quillhue
