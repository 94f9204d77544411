#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue {

/// Maximum number of entries that a user can ask for and that a reader accepts.
inline constexpr std::int32_t kMaxPaletteSize = 1024;

/// An ordered list of at least one color, with a selected flag for each. The channels are parallel arrays of equal
/// length. A copy includes the selection. A moved-from palette may only be assigned or destroyed.
class Palette {
 public:
  [[nodiscard]] std::int32_t getSize() const { return static_cast<std::int32_t>(selected_.size()); }

  /// `index` must be 0 .. getSize() - 1, here and in setEntry.
  [[nodiscard]] PaletteEntry entry(std::int32_t index) const;
  void setEntry(std::int32_t index, PaletteEntry color);

  /// One byte per entry.
  [[nodiscard]] std::span<std::uint8_t> channel(Channel channel) {
    return channels_[static_cast<std::size_t>(channel)];
  }
  [[nodiscard]] std::span<const std::uint8_t> channel(Channel channel) const {
    return channels_[static_cast<std::size_t>(channel)];
  }
  /// One byte per entry: 0 = not selected, 1 = selected.
  [[nodiscard]] std::span<std::uint8_t> selected() { return selected_; }
  [[nodiscard]] std::span<const std::uint8_t> selected() const { return selected_; }

  friend bool operator==(const Palette&, const Palette&) = default;
  friend Palette createPalette(std::int32_t size, PaletteEntry color);

 private:
  Palette(std::size_t size, PaletteEntry color);

  std::array<std::vector<std::uint8_t>, 3> channels_;
  std::vector<std::uint8_t> selected_;
};

/// Creates a palette of max(1, size) unselected entries of one color.
[[nodiscard]] Palette createPalette(std::int32_t size, PaletteEntry color = {});

/// Creates an unselected palette of these entries, or of one black entry if there are none.
[[nodiscard]] Palette paletteOf(std::span<const PaletteEntry> entries);
[[nodiscard]] std::vector<PaletteEntry> entriesOf(const Palette& palette);

/// Return the indexes and the colors of the selected entries, in index order.
[[nodiscard]] std::vector<std::int32_t> selectedIndexes(const Palette& palette);
[[nodiscard]] std::vector<PaletteEntry> selectedColors(const Palette& palette);

/// Creates a palette of max(1, newSize) entries. It starts with the entries of `palette` and their selected flags.
/// Added entries are unselected and have the blank color.
[[nodiscard]] Palette resizedCopy(const Palette& palette, std::int32_t newSize, PaletteEntry blank);

}  // namespace quillhue
