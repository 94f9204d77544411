#include "cli/terminal_colors.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace quillhue::cli {

namespace {

constexpr std::array kCubeLevels{0, 95, 135, 175, 215, 255};
constexpr int kFirstCubeColor = 16;
constexpr int kFirstGray = 232;
constexpr int kGrays = 24;

int grayLevel(int gray) { return 8 + 10 * gray; }

int nearestLevel(int value) {
  const auto* const nearest =
      std::ranges::min_element(kCubeLevels, {}, [&](int level) { return std::abs(level - value); });
  return static_cast<int>(nearest - kCubeLevels.begin());
}

int squaredDistance(PaletteEntry color, int red, int green, int blue) {
  return (color.red - red) * (color.red - red) + (color.green - green) * (color.green - green) +
         (color.blue - blue) * (color.blue - blue);
}

}  // namespace

TerminalColors terminalColorsOf(std::string_view term, std::string_view colorTerm) {
  if (term.empty() || term == "dumb") {
    return TerminalColors::none;
  }
  const bool isDirect = colorTerm == "truecolor" || colorTerm == "24bit" || term.ends_with("-direct");
  return isDirect ? TerminalColors::direct : TerminalColors::indexed;
}

int indexedColorOf(PaletteEntry color) {
  const int red = nearestLevel(color.red);
  const int green = nearestLevel(color.green);
  const int blue = nearestLevel(color.blue);
  const int mean = (color.red + color.green + color.blue) / 3;
  const int gray = std::clamp((mean - 3) / 10, 0, kGrays - 1);
  const auto level = [](int index) { return kCubeLevels[static_cast<std::size_t>(index)]; };
  const int ofCube = squaredDistance(color, level(red), level(green), level(blue));
  const int ofGray = squaredDistance(color, grayLevel(gray), grayLevel(gray), grayLevel(gray));
  return ofGray < ofCube ? kFirstGray + gray : kFirstCubeColor + 36 * red + 6 * green + blue;
}

std::string colorSequence(PaletteEntry color, TerminalColors colors) {
  const bool isDark = lumaOf(color) < 128;
  if (colors == TerminalColors::indexed) {
    return "\x1b[48;5;" + std::to_string(indexedColorOf(color)) + ";38;5;" + (isDark ? "231" : "16") + 'm';
  }
  return "\x1b[48;2;" + std::to_string(color.red) + ';' + std::to_string(color.green) + ';' +
         std::to_string(color.blue) + ";38;2;" + (isDark ? "255;255;255" : "0;0;0") + 'm';
}

}  // namespace quillhue::cli
