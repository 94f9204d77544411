#include "ui/win32/logical_palette.h"

#include <algorithm>
#include <array>
#include <bit>

#include "core/palette.h"

namespace quillhue {

LogicalPalette createLogicalPalette(std::span<const PaletteEntry> entries) {
  // A LOGPALETTE: its version and count have the size of one entry, and the entries follow.
  constexpr WORD kVersion = 0x300;
  std::vector<PALETTEENTRY> memory{
      std::bit_cast<PALETTEENTRY>(std::array<WORD, 2>{kVersion, static_cast<WORD>(entries.size())})};
  for (const PaletteEntry& entry : entries) {
    memory.push_back({entry.red, entry.green, entry.blue, PC_RESERVED});
  }
  return LogicalPalette(CreatePalette(reinterpret_cast<const LOGPALETTE*>(memory.data())));
}

std::vector<PaletteEntry> entriesOf(HPALETTE palette) {
  const UINT count = std::min<UINT>(GetPaletteEntries(palette, 0, 0, nullptr), kMaxPaletteSize);
  std::vector<PALETTEENTRY> colors(count);
  colors.resize(std::min(GetPaletteEntries(palette, 0, count, colors.data()), count));
  std::vector<PaletteEntry> entries(colors.size());
  std::ranges::transform(colors, entries.begin(), [](const PALETTEENTRY& color) {
    return PaletteEntry{color.peRed, color.peGreen, color.peBlue};
  });
  return entries;
}

}  // namespace quillhue
