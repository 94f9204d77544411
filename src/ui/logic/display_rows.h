#pragma once

#include <cstdint>

#include "ui/logic/image_view.h"

namespace quillhue {

/// Decides which rows of an image that is being remapped are painted, so that the user sees it grow while no row is
/// painted twice: painting all of it at every look would take time by the square of its height.
class DisplayRows {
 public:
  /// The first `done` rows are finished: those to paint now. They wait, and none are painted, until any of them can be
  /// seen.
  [[nodiscard]] RowRange progress(std::int32_t done, const RowRange& visible);

 private:
  std::int32_t painted_ = 0;
};

}  // namespace quillhue
