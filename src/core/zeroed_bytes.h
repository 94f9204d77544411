#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <span>

namespace quillhue {

/// Bytes that are zero until they are written. They come from the system as they are, so a large buffer costs memory
/// and time only where it is touched.
class ZeroedBytes {
 public:
  ZeroedBytes() = default;
  /// Throws std::bad_alloc.
  explicit ZeroedBytes(std::size_t size) : data_(static_cast<std::uint8_t*>(std::calloc(size, 1))), size_(size) {
    if (data_ == nullptr && size > 0) {
      throw std::bad_alloc();
    }
  }

  [[nodiscard]] std::span<std::uint8_t> bytes() { return {data_.get(), size_}; }
  [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {data_.get(), size_}; }

 private:
  struct Release {
    void operator()(std::uint8_t* data) const { std::free(data); }
  };

  std::unique_ptr<std::uint8_t, Release> data_;
  std::size_t size_ = 0;
};

}  // namespace quillhue
