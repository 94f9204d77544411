#include "core/commands/structure.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <utility>
#include <vector>

namespace quillhue {

namespace {

using Indexes = std::vector<std::int32_t>;

Indexes allIndexes(const PaletteDocument& document) {
  Indexes all(static_cast<std::size_t>(document.getSize()));
  std::iota(all.begin(), all.end(), 0);
  return all;
}

Indexes allIndexesExcept(const PaletteDocument& document, std::span<const std::int32_t> indexes) {
  std::vector<bool> listed(static_cast<std::size_t>(document.getSize()));
  for (const std::int32_t index : indexes) {
    listed[static_cast<std::size_t>(index)] = true;
  }
  Indexes rest = allIndexes(document);
  std::erase_if(rest, [&](std::int32_t index) { return listed[static_cast<std::size_t>(index)]; });
  return rest;
}

}  // namespace

void arrangeEntries(PaletteDocument& document, std::span<const std::int32_t> order) {
  const Palette& old = document.getPalette();
  Palette arranged = createPalette(static_cast<std::int32_t>(order.size()));
  std::int32_t next = 0;
  for (const std::int32_t index : order) {
    arranged.setEntry(next, old.entry(index));
    arranged.selected()[static_cast<std::size_t>(next++)] = old.selected()[static_cast<std::size_t>(index)];
  }
  document.replacePalette(std::move(arranged));
}

void deleteEntries(PaletteDocument& document, std::span<const std::int32_t> indexes) {
  arrangeEntries(document, allIndexesExcept(document, indexes));
}

void insertEntries(PaletteDocument& document, std::int32_t position, std::span<const PaletteEntry> colors) {
  const auto count = static_cast<std::int32_t>(colors.size());
  const Palette& old = document.getPalette();
  Palette longer = resizedCopy(old, old.getSize() + count, {});
  for (std::int32_t i = position; i < old.getSize(); ++i) {
    longer.setEntry(i + count, old.entry(i));
  }
  for (std::int32_t i = 0; i < count; ++i) {
    longer.setEntry(position + i, colors[static_cast<std::size_t>(i)]);
  }
  const auto flags = longer.selected();
  const auto inserted = flags.begin() + position;
  std::shift_right(inserted, flags.end(), count);
  std::fill_n(inserted, count, static_cast<std::uint8_t>(document.countSelected() == old.getSize() ? 1 : 0));
  document.replacePalette(std::move(longer));
}

void moveEntries(PaletteDocument& document, std::span<const std::int32_t> indexes, std::int32_t position) {
  Indexes order = allIndexesExcept(document, indexes);
  order.insert(order.begin() + position, indexes.begin(), indexes.end());
  arrangeEntries(document, order);
}

void swapEntries(PaletteDocument& document, std::int32_t one, std::int32_t other) {
  Indexes order = allIndexes(document);
  std::swap(order[static_cast<std::size_t>(one)], order[static_cast<std::size_t>(other)]);
  arrangeEntries(document, order);
}

void removeDuplicates(PaletteDocument& document) {
  std::set<PaletteEntry> seen;
  Indexes duplicates = allIndexes(document);
  std::erase_if(duplicates, [&](std::int32_t index) { return seen.insert(document.getColor(index)).second; });
  deleteEntries(document, duplicates);
}

}  // namespace quillhue
