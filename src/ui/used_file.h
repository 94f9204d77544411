#pragma once

#include <functional>
#include <string>
#include <utility>

#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Passes the name of an opened or saved file to a function half a second later. Adding a recent document takes the
/// system some time, in which the window could not answer right after the file was opened.
class UsedFile {
 public:
  using Use = std::function<void(const std::wstring& name)>;

  /// `window` gets the message WM_TIMER with kTimer. It must outlive this object.
  UsedFile(const CustomWindow& window, Use use) : window_(window), use_(std::move(use)) {}

  static constexpr UINT_PTR kTimer = 1;

  /// Passes on a waiting name at once, then lets this one wait.
  void note(const std::wstring& name);
  /// Passes on the waiting name, if there is one. Call this on WM_TIMER and before the window is destroyed.
  void passOn();

 private:
  const CustomWindow& window_;
  Use use_;
  std::wstring name_;
};

}  // namespace quillhue
