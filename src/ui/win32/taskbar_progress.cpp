#include "ui/win32/taskbar_progress.h"

namespace quillhue {

namespace {

constexpr std::chrono::milliseconds kDelay{500};
constexpr std::int32_t kPercent = 100;

ComReference<ITaskbarList3> createTaskbar() {
  void* created = nullptr;
  if (FAILED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, &created))) {
    return {};
  }
  ComReference<ITaskbarList3> taskbar(static_cast<ITaskbarList3*>(created));
  return SUCCEEDED(taskbar.get()->HrInit()) ? std::move(taskbar) : ComReference<ITaskbarList3>();
}

}  // namespace

TaskbarProgress::~TaskbarProgress() {
  if (taskbar_) {
    taskbar_.get()->SetProgressState(window_, TBPF_NOPROGRESS);
  }
}

void TaskbarProgress::report(std::int32_t done, std::int32_t total) {
  if (total <= 0 || std::chrono::steady_clock::now() - start_ < kDelay) {
    return;
  }
  // A system without a taskbar is asked only once.
  if (shown_ < 0) {
    taskbar_ = createTaskbar();
  }
  const auto percent = static_cast<std::int32_t>(std::int64_t{done} * kPercent / total);
  if (percent != shown_ && taskbar_) {
    taskbar_.get()->SetProgressValue(window_, static_cast<ULONGLONG>(percent), kPercent);
  }
  shown_ = percent;
}

}  // namespace quillhue
