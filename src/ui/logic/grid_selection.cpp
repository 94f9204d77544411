#include "ui/logic/grid_selection.h"

#include <algorithm>
#include <utility>

namespace quillhue {

bool GridSelection::press(const GridLayout& grid, Point point, Keys keys) {
  finish();
  const std::int32_t index = grid.hitTest(point);
  if (!document().contains(index)) {
    return false;
  }
  begin(Means::pointer, settings_.selectionMode, index, keys);
  gesture_.last = point;
  return gesture_.mode == SelectionMode::range ? selectRange() : give({index}, grid.columns());
}

bool GridSelection::drag(const GridLayout& grid, Point point) {
  if (!goesOn(Means::pointer)) {
    finish();
    return false;
  }
  if (gesture_.mode == SelectionMode::range) {
    const std::int32_t index = grid.hitTest(grid.nearestInside(point));
    if (index == kNoEntry) {
      return false;
    }
    current_ = std::min(index, document().getSize() - 1);
    return selectRange();
  }
  if (gesture_.mode == SelectionMode::row) {
    // A pointer to the left or right of a row counts as on that row.
    point.x = grid.margin();
    gesture_.last.x = grid.margin();
  }
  return give(grid.crossedCells(std::exchange(gesture_.last, point), point), grid.columns());
}

void GridSelection::releaseShift() {
  if (gesture_.by == Means::keys) {
    finish();
  }
}

void GridSelection::moveTo(std::int32_t index) {
  finish();
  current_ = index;
  anchor_ = index;
}

bool GridSelection::extendTo(std::int32_t index, Keys keys) {
  if (!document().contains(index)) {
    return false;
  }
  if (!goesOn(Means::keys)) {
    begin(Means::keys, SelectionMode::range, index, {true, keys.control});
  }
  current_ = index;
  return selectRange();
}

bool GridSelection::pressCurrent(std::int32_t columns, Keys keys) {
  finish();
  if (!document().contains(current_)) {
    return false;
  }
  begin(Means::keys, settings_.selectionMode, current_, keys);
  const bool changed = gesture_.mode == SelectionMode::range ? selectRange() : give({current_}, columns);
  finish();
  return changed;
}

void GridSelection::paletteChanged() {
  finish();
  const std::int32_t last = document().getSize() - 1;
  for (std::int32_t* const index : {&current_, &anchor_}) {
    *index = *index == kNoEntry ? kNoEntry : std::min(*index, last);
  }
}

void GridSelection::documentReplaced() {
  finish();
  current_ = kNoEntry;
  anchor_ = kNoEntry;
}

GridSelection::Flags GridSelection::currentFlags() const {
  const auto flags = document().getPalette().selected();
  return {flags.begin(), flags.end()};
}

// With Shift, a range starts at the anchor or, without an anchor, at the previous current entry.
void GridSelection::begin(Means by, SelectionMode mode, std::int32_t index, Keys keys) {
  gesture_ = {
      .by = by,
      .mode = mode,
      .state = static_cast<std::uint8_t>(document().isSelected(index) ? 0 : 1),
      .last = {},
      .base = keys.control ? currentFlags() : Flags(static_cast<std::size_t>(document().getSize())),
      .recorded = false,
      .modifications = document().modificationCount(),
      .saves = document().saveCount(),
  };
  if (mode != SelectionMode::range || !keys.shift) {
    anchor_ = index;
  } else if (!document().contains(anchor_)) {
    anchor_ = document().contains(current_) ? current_ : index;
  }
  current_ = index;
}

bool GridSelection::goesOn(Means by) const {
  return gesture_.by == by && gesture_.modifications == document().modificationCount() &&
         gesture_.saves == document().saveCount() && gesture_.base.size() == document().getPalette().selected().size();
}

// A cell past the palette's end has no entry, but its row may contain entries.
bool GridSelection::give(const std::vector<std::int32_t>& cells, std::int32_t columns) {
  const std::int32_t length = gesture_.mode == SelectionMode::row ? columns : 1;
  Flags wanted = currentFlags();
  for (const std::int32_t cell : cells) {
    const std::int32_t first = cell - cell % length;
    for (std::int32_t index = first; index < first + length && document().contains(index); ++index) {
      wanted[static_cast<std::size_t>(index)] = gesture_.state;
    }
  }
  return show(wanted);
}

bool GridSelection::selectRange() {
  Flags wanted = gesture_.base;
  const auto [first, last] = std::minmax(anchor_, current_);
  std::fill(wanted.begin() + first, wanted.begin() + last + 1, std::uint8_t{1});
  return show(wanted);
}

bool GridSelection::show(const Flags& wanted) {
  if (std::ranges::equal(wanted, document().getPalette().selected())) {
    return false;
  }
  if (!gesture_.recorded) {
    document().recordSelection();
    gesture_.recorded = true;
    gesture_.modifications = document().modificationCount();
  }
  for (std::int32_t index = 0; index < document().getSize(); ++index) {
    if (wanted[static_cast<std::size_t>(index)] != 0) {
      document().select(index);
    } else {
      document().deselect(index);
    }
  }
  return true;
}

}  // namespace quillhue
