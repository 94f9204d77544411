#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <span>
#include <type_traits>

namespace quillhue {

/// An array of numbers, initially zero. The system supplies zeroed memory on demand, so a large array costs memory and
/// time only where it is touched. A moved-from array may only be assigned or destroyed.
template <typename Number>
  requires std::is_arithmetic_v<Number>
class ZeroedMemory {
 public:
  ZeroedMemory() = default;
  /// Throws std::bad_alloc.
  explicit ZeroedMemory(std::size_t size)
      : data_(static_cast<Number*>(std::calloc(size, sizeof(Number)))), size_(size) {
    if (data_ == nullptr && size > 0) {
      throw std::bad_alloc();
    }
  }

  [[nodiscard]] std::span<Number> all() { return {data_.get(), size_}; }
  [[nodiscard]] std::span<const Number> all() const { return {data_.get(), size_}; }

 private:
  struct Release {
    void operator()(Number* data) const { std::free(data); }
  };

  std::unique_ptr<Number, Release> data_;
  std::size_t size_ = 0;
};

}  // namespace quillhue
