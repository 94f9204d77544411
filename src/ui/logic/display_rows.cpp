#include "ui/logic/display_rows.h"

#include <algorithm>

namespace quillhue {

RowRange DisplayRows::progress(std::int32_t done, const RowRange& visible) {
  const RowRange waiting{painted_, done};
  const RowRange seen{std::max(waiting.begin, visible.begin), std::min(waiting.end, visible.end)};
  if (seen.isEmpty()) {
    return {};
  }
  painted_ = done;
  return waiting;
}

}  // namespace quillhue
