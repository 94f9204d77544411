#include "ui/logic/display_rows.h"

#include <algorithm>
#include <utility>

namespace quillhue {

RowRange DisplayRows::progress(std::int32_t done, const RowRange& visible) {
  const RowRange waiting{copied_, done};
  const RowRange seen{std::max(waiting.begin, visible.begin), std::min(waiting.end, visible.end)};
  if (seen.isEmpty()) {
    return {};
  }
  copied_ = done;
  return waiting;
}

RowRange DisplayRows::finish() { return {std::exchange(copied_, height_), height_}; }

}  // namespace quillhue
