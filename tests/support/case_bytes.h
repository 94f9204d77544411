#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue {

/// The bytes that describe a test case, followed by zeros: the input of a fuzzer, or random bytes.
class CaseBytes {
 public:
  explicit CaseBytes(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
  /// Makes `count` random bytes, the same for the same seed.
  CaseBytes(std::size_t count, std::uint32_t seed) : bytes_(count) {
    std::minstd_rand random(seed);
    std::ranges::generate(bytes_, [&] { return static_cast<std::uint8_t>(random() >> 8); });
  }

  std::uint8_t next() { return place_ < bytes_.size() ? bytes_[place_++] : 0; }
  /// Returns a number from 0 to `limit`, at most 255.
  std::uint8_t upTo(int limit) { return static_cast<std::uint8_t>(next() % (limit + 1)); }
  template <typename Items>
  auto anyOf(const Items& items) {
    return items[next() % std::size(items)];
  }
  PaletteEntry colorUpTo(int limit) {
    const std::uint8_t red = upTo(limit);
    const std::uint8_t green = upTo(limit);
    return {red, green, upTo(limit)};
  }
  [[nodiscard]] std::size_t left() const { return bytes_.size() - place_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t place_ = 0;
};

}  // namespace quillhue
