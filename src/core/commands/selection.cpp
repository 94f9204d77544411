#include "core/commands/selection.h"

#include <set>
#include <vector>

namespace quillhue {

namespace {

// Selects the entries whose index satisfies `wanted` and deselects the others, in index order.
template <typename Predicate>
void selectWhere(PaletteDocument& document, Predicate wanted) {
  document.recordSelection();
  for (std::int32_t index = 0; index < document.getSize(); ++index) {
    if (wanted(index)) {
      document.select(index);
    } else {
      document.deselect(index);
    }
  }
}

// `wanted` compares an entry's color (first) with the current entry's color (second).
template <typename Predicate>
void selectByCurrent(PaletteDocument& document, std::int32_t current, Predicate wanted) {
  if (document.contains(current)) {
    const PaletteEntry reference = document.getColor(current);
    selectWhere(document, [&](std::int32_t index) { return wanted(document.getColor(index), reference); });
  }
}

std::int32_t brightness(const PaletteEntry& color) { return channelSum(color, kAllChannels); }

}  // namespace

void selectAll(PaletteDocument& document) {
  selectWhere(document, [](std::int32_t) { return true; });
}

void selectNone(PaletteDocument& document) {
  selectWhere(document, [](std::int32_t) { return false; });
}

void invertSelection(PaletteDocument& document) {
  selectWhere(document, [&](std::int32_t index) { return !document.isSelected(index); });
}

void selectEntries(PaletteDocument& document, std::span<const std::int32_t> indexes) {
  std::vector<bool> wanted(static_cast<std::size_t>(document.getSize()));
  for (const std::int32_t index : indexes) {
    if (document.contains(index)) {
      wanted[static_cast<std::size_t>(index)] = true;
    }
  }
  selectWhere(document, [&](std::int32_t index) { return wanted[static_cast<std::size_t>(index)]; });
}

void selectMatches(PaletteDocument& document, std::int32_t current) {
  selectByCurrent(document, current, [](const PaletteEntry& a, const PaletteEntry& b) { return a == b; });
}

void selectBrighter(PaletteDocument& document, std::int32_t current) {
  selectByCurrent(document, current,
                  [](const PaletteEntry& a, const PaletteEntry& b) { return brightness(a) > brightness(b); });
}

void selectDarker(PaletteDocument& document, std::int32_t current) {
  selectByCurrent(document, current,
                  [](const PaletteEntry& a, const PaletteEntry& b) { return brightness(a) < brightness(b); });
}

void selectRedundant(PaletteDocument& document) {
  std::set<PaletteEntry> seen;
  std::vector<bool> isRedundant;
  isRedundant.reserve(static_cast<std::size_t>(document.getSize()));
  for (std::int32_t index = 0; index < document.getSize(); ++index) {
    isRedundant.push_back(!seen.insert(document.getColor(index)).second);
  }
  selectWhere(document, [&](std::int32_t index) { return isRedundant[static_cast<std::size_t>(index)]; });
}

}  // namespace quillhue
