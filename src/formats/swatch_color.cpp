#include "formats/swatch_color.h"

#include <cmath>

namespace quillhue::swatch {

namespace {

// Limits the value to 0..1. NaN becomes 0.
double clampToUnit(double value) {
  if (!(value > 0)) {
    return 0;
  }
  return value < 1 ? value : 1;
}

std::uint8_t byteOf(double value) { return static_cast<std::uint8_t>(std::lround(clampToUnit(value) * 255)); }

// IEC 61966-2-1.
double encoded(double linear) {
  return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

// The inverse of the function f of CIE 15:2004, 8.2.1.
double cubed(double value) {
  constexpr double kDelta = 6.0 / 29;
  return value > kDelta ? value * value * value : 3 * kDelta * kDelta * (value - 4.0 / 29);
}

}  // namespace

PaletteEntry fromRgb(double red, double green, double blue) { return {byteOf(red), byteOf(green), byteOf(blue)}; }

PaletteEntry fromGray(double gray) { return fromRgb(gray, gray, gray); }

PaletteEntry fromHsb(double hue, double saturation, double brightness) {
  const double sector = 6 * clampToUnit(hue);
  // Returns the channel that is brightest around `place`, 0..6 on the color circle.
  const auto channel = [&](double place) {
    const double distance = std::fmod(sector - place + 9, 6) - 3;
    const double share = clampToUnit(2 - std::abs(distance));
    return clampToUnit(brightness) * (1 - clampToUnit(saturation) * (1 - share));
  };
  return fromRgb(channel(0), channel(2), channel(4));
}

PaletteEntry fromCmyk(double cyan, double magenta, double yellow, double black) {
  const double light = 1 - clampToUnit(black);
  return fromRgb((1 - clampToUnit(cyan)) * light, (1 - clampToUnit(magenta)) * light,
                 (1 - clampToUnit(yellow)) * light);
}

PaletteEntry fromLab(double lightness, double a, double b) {
  const double middle = (100 * clampToUnit(lightness / 100) + 16) / 116;
  const double x = 0.96422 * cubed(middle + a / 500);
  const double y = cubed(middle);
  const double z = 0.82521 * cubed(middle - b / 200);
  // Converts XYZ under D50 to linear sRGB: the Bradford matrix from D50 to D65, then the matrix of IEC 61966-2-1.
  return fromRgb(encoded(3.1338561 * x - 1.6168667 * y - 0.4906146 * z),
                 encoded(-0.9787684 * x + 1.9161415 * y + 0.0334540 * z),
                 encoded(0.0719453 * x - 0.2289914 * y + 1.4052427 * z));
}

}  // namespace quillhue::swatch
