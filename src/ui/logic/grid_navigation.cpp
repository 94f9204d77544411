#include "ui/logic/grid_navigation.h"

#include <algorithm>

namespace quillhue {

std::int32_t nextEntry(GridKey key, std::int32_t current, std::int32_t paletteSize, std::int32_t columns) {
  const std::int32_t last = paletteSize - 1;
  if (key == GridKey::end) {
    return last;
  }
  if (key == GridKey::home || current < 0 || current > last) {
    return 0;
  }
  const std::int32_t column = current % columns;
  switch (key) {
    case GridKey::left:
      return std::max(current - 1, 0);
    case GridKey::right:
      return std::min(current + 1, last);
    case GridKey::up:
      return current < columns ? current : current - columns;
    case GridKey::down:
      return current > last - columns ? current : current + columns;
    case GridKey::pageUp:
      return column;
    default:
      return column + (last - column) / columns * columns;
  }
}

}  // namespace quillhue
