#pragma once

#include <cstdint>

#include "ui/logic/image_view.h"

namespace quillhue {

/// Chooses the rows of an image to paint while it is being remapped. The user sees the image grow, and no row is
/// painted twice: repainting the whole image at each step would take time quadratic in its height.
class DisplayRows {
 public:
  /// Returns the rows to paint now that the first `done` rows are finished: all rows not painted before, or none while
  /// all of them are outside `visible`.
  [[nodiscard]] RowRange progress(std::int32_t done, const RowRange& visible);

 private:
  std::int32_t painted_ = 0;
};

}  // namespace quillhue
