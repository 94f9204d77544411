#include "core/commands/ramp.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "core/color_space.h"

namespace quillhue {

namespace {

PaletteEntry mixRgb(const PaletteEntry& from, const PaletteEntry& to, double part) {
  PaletteEntry mixed;
  for (const Channel channel : kChannels) {
    channelOf(mixed, channel) =
        static_cast<std::uint8_t>(std::lround(std::lerp(channelOf(from, channel), channelOf(to, channel), part)));
  }
  return mixed;
}

PaletteEntry mixHsv(const PaletteEntry& from, const PaletteEntry& to, double part) {
  Hsv start = hsvOf(from);
  Hsv end = hsvOf(to);
  if (isGray(from)) {
    start.hue = end.hue;
  } else if (isGray(to)) {
    end.hue = start.hue;
  }
  const double turn = std::remainder(end.hue - start.hue, 360.0);
  return colorOf(Hsv{start.hue + part * turn, std::lerp(start.saturation, end.saturation, part),
                     std::lerp(start.value, end.value, part)});
}

PaletteEntry mixOklab(const PaletteEntry& from, const PaletteEntry& to, double part) {
  const Oklab start = oklabOf(from);
  const Oklab end = oklabOf(to);
  return colorOf(Oklab{std::lerp(start.lightness, end.lightness, part), std::lerp(start.a, end.a, part),
                       std::lerp(start.b, end.b, part)});
}

constexpr std::array<RampSpace, 3> kSpaces{{{"rgb", mixRgb}, {"hsv", mixHsv}, {"oklab", mixOklab}}};

}  // namespace

std::span<const RampSpace> rampSpaces() { return kSpaces; }

void ramp(PaletteDocument& document, ChannelMask mask, std::int32_t from, std::int32_t to, const RampSpace& space) {
  document.recordColors();
  const PaletteEntry start = document.getColor(from);
  const PaletteEntry end = document.getColor(to);
  const std::int32_t steps = std::abs(to - from);
  const std::int32_t direction = to < from ? -1 : 1;
  for (std::int32_t step = 1; step < steps; ++step) {
    const std::int32_t index = from + direction * step;
    const PaletteEntry mixed = space.mix(start, end, static_cast<double>(step) / steps);
    document.setColor(index, withChannels(document.getColor(index), mask, mixed));
  }
}

}  // namespace quillhue
