#pragma once

#include <cstdint>

#include "core/palette.h"

namespace quillhue {

/// The Adler-32 checksum of RFC 1950.
class Checksum {
 public:
  void add(std::uint8_t byte) {
    low_ = (low_ + byte) % 65521;
    high_ = (high_ + low_) % 65521;
  }
  void add(const PaletteEntry& color) {
    for (const Channel channel : kChannels) {
      add(channelOf(color, channel));
    }
  }
  [[nodiscard]] std::uint32_t value() const { return high_ << 16 | low_; }

 private:
  std::uint32_t low_ = 1;
  std::uint32_t high_ = 0;
};

inline std::uint32_t checksumOf(const Palette& palette) {
  Checksum sum;
  for (const PaletteEntry& color : entriesOf(palette)) {
    sum.add(color);
  }
  return sum.value();
}

}  // namespace quillhue
