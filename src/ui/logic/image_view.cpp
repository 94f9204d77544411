#include "ui/logic/image_view.h"

#include <algorithm>

namespace quillhue {

std::int32_t ScrollRange::last() const { return std::max(extent - step(), 0); }

std::int32_t ScrollRange::clamp(std::int32_t position) const { return std::clamp(position, 0, last()); }

std::int32_t scrolled(ScrollAction action, std::int32_t position, std::int32_t tracked, const ScrollRange& range) {
  switch (action) {
    case ScrollAction::lineBack:
      return range.clamp(position - 1);
    case ScrollAction::lineForward:
      return range.clamp(position + 1);
    case ScrollAction::pageBack:
      return range.clamp(position - range.step());
    case ScrollAction::pageForward:
      return range.clamp(position + range.step());
    case ScrollAction::track:
      return range.clamp(tracked);
    case ScrollAction::toStart:
      return 0;
    case ScrollAction::toEnd:
      return range.last();
  }
  return position;
}

RowRange visibleRows(std::int32_t firstRow, std::int32_t areaHeight, Scale scale) {
  constexpr std::int32_t kStatusHeight = 24;
  constexpr std::int32_t kRowsBetweenLooks = 16;
  return {firstRow, firstRow + areaHeight - scale(kStatusHeight) + kRowsBetweenLooks + 1};
}

}  // namespace quillhue
