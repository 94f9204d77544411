#pragma once

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

namespace quillhue {

/// One color: red, green and blue, 0..255 each.
struct PaletteEntry {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend auto operator<=>(const PaletteEntry&, const PaletteEntry&) = default;
};

enum class Channel : std::uint8_t { red, green, blue };
inline constexpr std::array<Channel, 3> kChannels{Channel::red, Channel::green, Channel::blue};

/// A set of channels: 1 = red, 2 = green, 4 = blue.
using ChannelMask = std::uint32_t;
inline constexpr ChannelMask kAllChannels = 7;
constexpr ChannelMask maskOf(Channel channel) { return ChannelMask{1} << static_cast<unsigned>(channel); }
constexpr bool hasChannel(ChannelMask mask, Channel channel) { return (mask & maskOf(channel)) != 0; }

/// Returns a reference to one channel of `color`, a PaletteEntry or const PaletteEntry.
constexpr auto& channelOf(auto& color, Channel channel) {
  constexpr std::array kMembers{&PaletteEntry::red, &PaletteEntry::green, &PaletteEntry::blue};
  return color.*kMembers[static_cast<std::size_t>(channel)];
}

/// Returns the sum of the color's channels in `mask`, 0..765.
constexpr std::int32_t channelSum(const PaletteEntry& color, ChannelMask mask) {
  std::int32_t sum = 0;
  for (const Channel channel : kChannels) {
    sum += hasChannel(mask, channel) ? channelOf(color, channel) : 0;
  }
  return sum;
}

/// Returns the color's luma (ITU-R BT.601), 0..255.
constexpr std::int32_t lumaOf(const PaletteEntry& color) {
  return (299 * color.red + 587 * color.green + 114 * color.blue) / 1000;
}

/// Returns the nearest value in 0..255.
constexpr std::uint8_t clampToByte(std::int32_t value) { return static_cast<std::uint8_t>(std::clamp(value, 0, 255)); }

/// Returns `color` with the channels in `mask` replaced by those of `source`.
constexpr PaletteEntry withChannels(PaletteEntry color, ChannelMask mask, const PaletteEntry& source) {
  for (const Channel channel : kChannels) {
    if (hasChannel(mask, channel)) {
      channelOf(color, channel) = channelOf(source, channel);
    }
  }
  return color;
}

}  // namespace quillhue
