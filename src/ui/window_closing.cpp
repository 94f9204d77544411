#include "ui/window_closing.h"

namespace quillhue {

// The user must answer an open dialog first.
bool WindowClosing::mayClose() { return IsWindowEnabled(window_.handle()) && frame_.confirmDiscard(); }

void WindowClosing::close() {
  if (closesAfterRun_ || !mayClose()) {
    return;
  }
  if (runIsOn_) {
    closesAfterRun_ = true;
  } else {
    DestroyWindow(window_.handle());
  }
}

void WindowClosing::endRun() {
  runIsOn_ = false;
  if (closesAfterRun_) {
    PostMessageW(window_.handle(), kRunEnded, 0, 0);
  }
}

// Checks the state, because any program may post this message.
void WindowClosing::runEnded() const {
  if (closesAfterRun_ && !runIsOn_) {
    DestroyWindow(window_.handle());
  }
}

bool WindowClosing::maySessionEnd() {
  if (closesAfterRun_ || slot_.document() == nullptr || !slot_.document()->isModified()) {
    return true;
  }
  if (IsWindowEnabled(window_.handle()) != 0) {
    return frame_.confirmDiscard();
  }
  ShutdownBlockReasonCreate(window_.handle(), L"The palette is not saved. Close the open dialog first.");
  return false;
}

void WindowClosing::sessionGoesOn() const { ShutdownBlockReasonDestroy(window_.handle()); }

}  // namespace quillhue
