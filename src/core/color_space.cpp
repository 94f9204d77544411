#include "core/color_space.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillhue {

namespace {

constexpr double kFull = 255;
constexpr double kCircle = 360;
constexpr double kSector = 60;

std::uint8_t byteOf(double part) { return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * kFull)); }

// The transfer function of sRGB.
double linearOf(std::uint8_t value) {
  const double part = value / kFull;
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double encodedOf(double linear) {
  return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

Vector product(const Matrix& matrix, const Vector& vector) {
  Vector result{};
  for (std::size_t i = 0; i < matrix.size(); ++i) {
    result[i] = matrix[i][0] * vector[0] + matrix[i][1] * vector[1] + matrix[i][2] * vector[2];
  }
  return result;
}

// The matrices of Oklab and their inverses, from its author's publication.
constexpr Matrix kConesOfRgb{{{0.4122214708, 0.5363325363, 0.0514459929},
                              {0.2119034982, 0.6806995451, 0.1073969566},
                              {0.0883024619, 0.2817188376, 0.6299787005}}};
constexpr Matrix kLabOfRoots{{{0.2104542553, 0.7936177850, -0.0040720468},
                              {1.9779984951, -2.4285922050, 0.4505937099},
                              {0.0259040371, 0.7827717662, -0.8086757660}}};
constexpr Matrix kRootsOfLab{
    {{1, 0.3963377774, 0.2158037573}, {1, -0.1055613458, -0.0638541728}, {1, -0.0894841775, -1.2914855480}}};
constexpr Matrix kRgbOfCones{{{4.0767416621, -3.3077115913, 0.2309699292},
                              {-1.2684380046, 2.6097574011, -0.3413193965},
                              {-0.0041960863, -0.7034186147, 1.7076147010}}};

}  // namespace

Hsv hsvOf(const PaletteEntry& color) {
  const double greatest = std::max({color.red, color.green, color.blue});
  const double spread = greatest - std::min({color.red, color.green, color.blue});
  if (spread == 0) {
    return {0, 0, greatest / kFull};
  }
  double sector = 4 + (color.red - color.green) / spread;
  if (color.red == greatest) {
    sector = (color.green - color.blue) / spread + (color.green < color.blue ? 6 : 0);
  } else if (color.green == greatest) {
    sector = 2 + (color.blue - color.red) / spread;
  }
  return {sector * kSector, spread / greatest, greatest / kFull};
}

PaletteEntry colorOf(const Hsv& hsv) {
  // Smith's sectors in one formula: a channel falls with its distance from its primary color on the circle.
  const auto channel = [&](double offset) {
    const double sector = std::fmod(offset + hsv.hue / kSector + 6 * kCircle, 6);
    return byteOf(hsv.value * (1 - hsv.saturation * std::clamp(std::min(sector, 4 - sector), 0.0, 1.0)));
  };
  return {channel(5), channel(3), channel(1)};
}

Oklab oklabOf(const PaletteEntry& color) {
  Vector cones = product(kConesOfRgb, {linearOf(color.red), linearOf(color.green), linearOf(color.blue)});
  std::ranges::transform(cones, cones.begin(), [](double cone) { return std::cbrt(cone); });
  const auto [lightness, a, b] = product(kLabOfRoots, cones);
  return {lightness, a, b};
}

PaletteEntry colorOf(const Oklab& lab) {
  Vector cones = product(kRootsOfLab, {lab.lightness, lab.a, lab.b});
  std::ranges::transform(cones, cones.begin(), [](double root) { return root * root * root; });
  const auto [red, green, blue] = product(kRgbOfCones, cones);
  return {byteOf(encodedOf(red)), byteOf(encodedOf(green)), byteOf(encodedOf(blue))};
}

}  // namespace quillhue
