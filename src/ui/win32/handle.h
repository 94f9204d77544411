#pragma once

#include <utility>

#include "ui/win32/system.h"

namespace quillhue {

/// Owns one object of the system. `Kind` defines the type of the handle, whose default value is null, and how to close
/// it.
template <typename Kind>
class Handle {
 public:
  using Value = typename Kind::Value;

  Handle() = default;
  explicit Handle(Value value) : value_(value) {}
  Handle(Handle&& other) noexcept : value_(other.release()) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) {
      reset(other.release());
    }
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { reset(); }

  [[nodiscard]] Value get() const { return value_; }
  [[nodiscard]] explicit operator bool() const { return value_ != Value{}; }

  /// Transfers ownership to the caller.
  Value release() { return std::exchange(value_, Value{}); }
  void reset(Value value = {}) {
    if (const Value old = std::exchange(value_, value); old != Value{}) {
      Kind::close(old);
    }
  }

 private:
  Value value_{};
};

/// A kind of handle that a system function closes.
template <typename Type, auto kClose>
struct ClosedBy {
  using Value = Type;
  static void close(Value value) { kClose(value); }
};

inline void releaseScreenDc(HDC dc) { ReleaseDC(nullptr, dc); }

using Brush = Handle<ClosedBy<HBRUSH, DeleteObject>>;
using Font = Handle<ClosedBy<HFONT, DeleteObject>>;
using Bitmap = Handle<ClosedBy<HBITMAP, DeleteObject>>;
using LogicalPalette = Handle<ClosedBy<HPALETTE, DeleteObject>>;
using MemoryDc = Handle<ClosedBy<HDC, DeleteDC>>;
/// The device context of the whole screen.
using ScreenDc = Handle<ClosedBy<HDC, releaseScreenDc>>;
using Window = Handle<ClosedBy<HWND, DestroyWindow>>;
using Menu = Handle<ClosedBy<HMENU, DestroyMenu>>;
using Icon = Handle<ClosedBy<HICON, DestroyIcon>>;
using Cursor = Handle<ClosedBy<HCURSOR, DestroyCursor>>;
using Accelerators = Handle<ClosedBy<HACCEL, DestroyAcceleratorTable>>;
using RegistryKey = Handle<ClosedBy<HKEY, RegCloseKey>>;
using GlobalMemory = Handle<ClosedBy<HGLOBAL, GlobalFree>>;
/// Files that were dropped on a window.
using Drop = Handle<ClosedBy<HDROP, DragFinish>>;

}  // namespace quillhue
