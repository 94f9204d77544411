#pragma once

#include <cstdint>

#include "ui/logic/image_view.h"

namespace quillhue {

/// Decides which rows of an image that is being remapped go to the bitmap on the screen, so that the user sees it grow
/// while no row is copied twice: copying all of it at every look would take time by the square of its height.
class DisplayRows {
 public:
  explicit DisplayRows(std::int32_t height) : height_(height) {}

  /// The first `done` rows are finished: those to copy now. They wait, and none are copied, until any of them can be
  /// seen.
  [[nodiscard]] RowRange progress(std::int32_t done, const RowRange& visible);
  /// All rows are finished: those that are not copied yet.
  [[nodiscard]] RowRange finish();

 private:
  std::int32_t height_;
  std::int32_t copied_ = 0;
};

}  // namespace quillhue
