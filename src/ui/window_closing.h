#pragma once

#include "core/document.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"
#include "ui/window_context.h"

namespace quillhue {

/// Decides when the main window may close: after the user was asked about unsaved changes, and not during a run.
class WindowClosing {
 public:
  /// All parts must outlive this object.
  WindowClosing(const CustomWindow& window, WindowFrame& frame, const DocumentSlot& slot)
      : window_(window), frame_(frame), slot_(slot) {}

  /// Posted to the window at the end of a run if the user has closed the window meanwhile.
  static constexpr UINT kRunEnded = WM_APP;

  /// Closes the window on the user's wish, at once or at the end of the run.
  void close();
  /// True if the user has closed the window during a run.
  [[nodiscard]] bool isWaiting() const { return closesAfterRun_; }

  void beginRun() { runIsOn_ = true; }
  void endRun();
  /// Answers kRunEnded.
  void runEnded() const;

  /// Asks about unsaved changes before the session of Windows ends. While a dialog is open, it can't ask: it then
  /// refuses and lets the system show the reason.
  [[nodiscard]] bool maySessionEnd();
  /// Withdraws the reason, because the session goes on.
  void sessionGoesOn() const;

 private:
  [[nodiscard]] bool mayClose();

  const CustomWindow& window_;
  WindowFrame& frame_;
  const DocumentSlot& slot_;
  bool runIsOn_ = false;
  bool closesAfterRun_ = false;
};

}  // namespace quillhue
