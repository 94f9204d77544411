#pragma once

#include <chrono>
#include <cstdint>

#include "ui/win32/com.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Shows the progress of long work on a window's taskbar button, from the first report after half a second until the
/// end of this object.
class TaskbarProgress {
 public:
  explicit TaskbarProgress(HWND window) : window_(window) {}
  TaskbarProgress(const TaskbarProgress&) = delete;
  TaskbarProgress& operator=(const TaskbarProgress&) = delete;
  ~TaskbarProgress();

  /// Reports that `done` of `total` are done.
  void report(std::int32_t done, std::int32_t total);

 private:
  HWND window_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  // Null until the progress is shown.
  ComReference<ITaskbarList3> taskbar_;
  std::int32_t shown_ = -1;
};

}  // namespace quillhue
