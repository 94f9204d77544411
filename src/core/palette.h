#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue {

/// The most entries that a user can ask for, and that any reader accepts.
inline constexpr std::int32_t kMaxPaletteSize = 1024;

/// An ordered list of colors, at least one, with a selected flag for each. The channels are parallel arrays of equal
/// length. Copying copies everything, the selection included; a moved-from palette may only be assigned or destroyed.
class Palette {
 public:
  [[nodiscard]] std::int32_t getSize() const { return static_cast<std::int32_t>(selected_.size()); }

  /// `index` is 0 .. getSize() - 1, here and in setEntry.
  [[nodiscard]] PaletteEntry entry(std::int32_t index) const;
  void setEntry(std::int32_t index, PaletteEntry color);

  /// One byte an entry.
  [[nodiscard]] std::span<std::uint8_t> channel(Channel channel) {
    return channels_[static_cast<std::size_t>(channel)];
  }
  [[nodiscard]] std::span<const std::uint8_t> channel(Channel channel) const {
    return channels_[static_cast<std::size_t>(channel)];
  }
  /// One byte an entry: 0 = not selected, 1 = selected.
  [[nodiscard]] std::span<std::uint8_t> selected() { return selected_; }
  [[nodiscard]] std::span<const std::uint8_t> selected() const { return selected_; }

  friend bool operator==(const Palette&, const Palette&) = default;
  friend Palette createPalette(std::int32_t size, PaletteEntry color);

 private:
  Palette(std::size_t size, PaletteEntry color);

  std::array<std::vector<std::uint8_t>, 3> channels_;
  std::vector<std::uint8_t> selected_;
};

/// A palette of max(1, size) entries, all of one color, none selected.
[[nodiscard]] Palette createPalette(std::int32_t size, PaletteEntry color = {});

/// An unselected palette of these entries; one black entry when there are none.
[[nodiscard]] Palette paletteOf(std::span<const PaletteEntry> entries);
[[nodiscard]] std::vector<PaletteEntry> entriesOf(const Palette& palette);

/// The selected entries in index order: their indexes, and their colors.
[[nodiscard]] std::vector<std::int32_t> selectedIndexes(const Palette& palette);
[[nodiscard]] std::vector<PaletteEntry> selectedColors(const Palette& palette);

/// A palette of max(1, newSize) entries: those that `palette` has, selected flags included, then unselected ones in
/// the blank color.
[[nodiscard]] Palette resizedCopy(const Palette& palette, std::int32_t newSize, PaletteEntry blank);

}  // namespace quillhue
