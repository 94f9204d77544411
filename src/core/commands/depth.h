#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/document.h"
#include "core/value_range.h"

namespace quillhue {

/// Bits of red, green and blue.
using ChannelBits = std::array<std::int32_t, 3>;
inline constexpr ValueRange kBitsRange{1, 8};

/// Colors as hardware or a file stores them.
struct ColorDepth {
  std::string_view name;
  ChannelBits bits;
};
[[nodiscard]] std::span<const ColorDepth> colorDepths();

/// Rounds the channels in `mask` of every selected entry to the nearest value that this number of bits can hold, as one
/// undo step. The value is then expanded to 8 bits by repeating its bits.
void reduceDepth(PaletteDocument& document, ChannelMask mask, const ChannelBits& bits);

}  // namespace quillhue
