#include "core/system_palettes.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/generators.h"

namespace quillhue {

namespace {

// IBM Color Graphics Adapter: the four-color modes at high intensity, and all sixteen colors.
constexpr std::array<PaletteEntry, 4> kCgaCold{{{0, 0, 0}, {85, 255, 255}, {255, 85, 255}, {255, 255, 255}}};
constexpr std::array<PaletteEntry, 4> kCgaWarm{{{0, 0, 0}, {85, 255, 85}, {255, 85, 85}, {255, 255, 85}}};
constexpr std::array<PaletteEntry, 4> kCgaMode5{{{0, 0, 0}, {85, 255, 255}, {255, 85, 85}, {255, 255, 255}}};
constexpr std::array<PaletteEntry, 16> kCga{{{0, 0, 0},
                                             {0, 0, 170},
                                             {0, 170, 0},
                                             {0, 170, 170},
                                             {170, 0, 0},
                                             {170, 0, 170},
                                             {170, 85, 0},
                                             {170, 170, 170},
                                             {85, 85, 85},
                                             {85, 85, 255},
                                             {85, 255, 85},
                                             {85, 255, 255},
                                             {255, 85, 85},
                                             {255, 85, 255},
                                             {255, 255, 85},
                                             {255, 255, 255}}};

// IBM Enhanced Graphics Adapter. The index has the bits rgbRGB: a capital letter adds two thirds of full intensity, a
// small letter one third.
Palette createEga(ScreenPalette& /*screen*/) {
  Palette palette = createPalette(64);
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const auto value = [i](int high, int low) {
      return static_cast<std::uint8_t>((i >> high & 1) * 170 + (i >> low & 1) * 85);
    };
    palette.setEntry(i, {value(2, 5), value(1, 4), value(0, 3)});
  }
  return palette;
}

// The VGA BIOS's default palette of mode 13h, in 6-bit values of the digital-analog converter: the CGA colors, a ramp
// of greys, then nine rings of 24 hues. Each ring uses five values, listed in ascending order.
constexpr std::array<std::uint8_t, 16> kVgaGreys{0, 5, 8, 11, 14, 17, 20, 24, 28, 32, 36, 40, 45, 50, 56, 63};
constexpr std::array<std::array<std::uint8_t, 5>, 9> kVgaRings{{{0, 16, 31, 47, 63},
                                                                {31, 39, 47, 55, 63},
                                                                {45, 49, 54, 58, 63},
                                                                {0, 7, 14, 21, 28},
                                                                {14, 17, 21, 24, 28},
                                                                {20, 22, 24, 26, 28},
                                                                {0, 4, 8, 12, 16},
                                                                {8, 10, 12, 14, 16},
                                                                {11, 12, 13, 15, 16}}};
constexpr std::size_t kRingSize = 24;

constexpr std::uint8_t fromSixBits(std::uint8_t value) { return static_cast<std::uint8_t>(value * 4 + value / 16); }

// Returns the index into a ring's values for red. The ring starts at blue: red rises in four steps, is full for a third
// of the ring, falls again, and is lowest for the last third. Green has the value of red two thirds of a ring later,
// blue that of red one third later.
constexpr std::size_t ringStep(std::size_t hue) {
  hue %= kRingSize;
  if (hue < 4) {
    return hue;
  }
  if (hue <= 12) {
    return 4;
  }
  return hue < 16 ? 16 - hue : 0;
}

Palette createVga(ScreenPalette& /*screen*/) {
  std::array<PaletteEntry, 256> entries{};
  // The CGA colors' 170 and 85 are the 6-bit values 42 and 21, expanded.
  auto next = std::ranges::copy(kCga, entries.begin()).out;
  for (const std::uint8_t grey : kVgaGreys) {
    const std::uint8_t value = fromSixBits(grey);
    *next++ = {value, value, value};
  }
  for (const auto& ring : kVgaRings) {
    for (std::size_t hue = 0; hue < kRingSize; ++hue) {
      *next++ = {fromSixBits(ring[ringStep(hue)]), fromSixBits(ring[ringStep(hue + 2 * kRingSize / 3)]),
                 fromSixBits(ring[ringStep(hue + kRingSize / 3)])};
    }
  }
  return paletteOf(entries);
}

Palette createWebSafe(ScreenPalette& /*screen*/) { return createRgbPalette(256, {6, 6, 6}, false, {}); }

Palette createWindows(ScreenPalette& /*screen*/) { return createBlankPalette(16, true, {}); }

Palette createHalftone(ScreenPalette& screen) {
  const std::vector<PaletteEntry> entries = screen.halftone();
  return paletteOf(std::span(entries).first(std::min(entries.size(), std::size_t{kMaxPaletteSize})));
}

constexpr std::array<SystemPalette, 9> kSystemPalettes{{
    {2, "cga-cold", "CGA (cold 2-bit)", [](ScreenPalette&) { return paletteOf(kCgaCold); }},
    {3, "cga-warm", "CGA (warm 2-bit)", [](ScreenPalette&) { return paletteOf(kCgaWarm); }},
    {4, "cga-mode5", "CGA (mode 5 2-bit)", [](ScreenPalette&) { return paletteOf(kCgaMode5); }},
    {5, "cga", "&CGA (4-bit)", [](ScreenPalette&) { return paletteOf(kCga); }},
    {6, "ega", "&EGA", createEga},
    {7, "vga", "&VGA", createVga},
    {8, "web-safe", "Web &safe", createWebSafe},
    {9, "windows", "&Windows (4-bit)", createWindows},
    {10, "halftone", "Windows &halftone", createHalftone},
}};

}  // namespace

std::span<const SystemPalette> systemPalettes() { return kSystemPalettes; }

Palette createSystemPalette(std::int32_t commandId, ScreenPalette& screen) {
  const auto* const found = std::ranges::find(kSystemPalettes, commandId, &SystemPalette::commandId);
  return found == kSystemPalettes.end() ? createWindows(screen) : found->create(screen);
}

std::vector<PaletteEntry> FixedHalftone::halftone() {
  Palette palette = createRgbPalette(256, {6, 6, 6}, true, {});
  for (std::int32_t k = 1; k <= 20; ++k) {
    const auto grey = static_cast<std::uint8_t>(255 * k / 21);
    palette.setEntry(225 + k, {grey, grey, grey});
  }
  return entriesOf(palette);
}

}  // namespace quillhue
