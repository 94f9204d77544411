#include "cli/palette_text.h"

#include <iomanip>
#include <string>

#include "cli/terminal_colors.h"
#include "formats/hex_color.h"

namespace quillhue::cli {

namespace {

// The width of " 1023 " and " #RRGGBB " together.
constexpr int kCellWidth = 15;

void showBlocks(const Palette& palette, Console& console) {
  int columns = 1;
  while (columns < 16 && 2 * columns * kCellWidth <= console.columns) {
    columns *= 2;
  }
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const PaletteEntry color = palette.entry(i);
    const bool endsLine = i % columns == columns - 1 || i + 1 == palette.getSize();
    console.out << std::setw(5) << i << ' ' << colorSequence(color, console.colors) << ' ' << hexTextOf(color)
                << " \x1b[0m" << (endsLine ? "\n" : "");
  }
}

void showLines(const Palette& palette, Console& console) {
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const PaletteEntry color = palette.entry(i);
    console.out << std::setw(4) << i << "  " << hexTextOf(color) << std::setw(5) << int{color.red} << std::setw(4)
                << int{color.green} << std::setw(4) << int{color.blue} << '\n';
  }
}

}  // namespace

std::string hexOf(PaletteEntry color) {
  std::ostringstream text;
  text << '#' << std::uppercase << std::hex << std::setfill('0') << std::setw(6)
       << (color.red << 16 | color.green << 8 | color.blue);
  return text.str();
}

void showPalette(const Palette& palette, Console& console) {
  if (console.colors != TerminalColors::none) {
    showBlocks(palette, console);
  } else {
    showLines(palette, console);
  }
}

}  // namespace quillhue::cli
