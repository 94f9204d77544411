#pragma once

#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>

#include <utility>

namespace quillhue {

/// Owns one object of the system. A kind tells the type, which has a null value, and how it is given back.
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

  /// Gives the object to the caller.
  Value release() { return std::exchange(value_, Value{}); }
  void reset(Value value = {}) {
    if (const Value old = std::exchange(value_, value); old != Value{}) {
      Kind::close(old);
    }
  }

 private:
  Value value_{};
};

template <typename Type>
struct GdiKind {
  using Value = Type;
  static void close(Value value) { DeleteObject(value); }
};
using Brush = Handle<GdiKind<HBRUSH>>;
using Font = Handle<GdiKind<HFONT>>;
using Bitmap = Handle<GdiKind<HBITMAP>>;
using LogicalPalette = Handle<GdiKind<HPALETTE>>;

struct MemoryDcKind {
  using Value = HDC;
  static void close(Value value) { DeleteDC(value); }
};
using MemoryDc = Handle<MemoryDcKind>;

/// Of the whole screen.
struct ScreenDcKind {
  using Value = HDC;
  static void close(Value value) { ReleaseDC(nullptr, value); }
};
using ScreenDc = Handle<ScreenDcKind>;

struct WindowKind {
  using Value = HWND;
  static void close(Value value) { DestroyWindow(value); }
};
using Window = Handle<WindowKind>;

struct MenuKind {
  using Value = HMENU;
  static void close(Value value) { DestroyMenu(value); }
};
using Menu = Handle<MenuKind>;

struct IconKind {
  using Value = HICON;
  static void close(Value value) { DestroyIcon(value); }
};
using Icon = Handle<IconKind>;

struct CursorKind {
  using Value = HCURSOR;
  static void close(Value value) { DestroyCursor(value); }
};
using Cursor = Handle<CursorKind>;

struct AcceleratorsKind {
  using Value = HACCEL;
  static void close(Value value) { DestroyAcceleratorTable(value); }
};
using Accelerators = Handle<AcceleratorsKind>;

struct RegistryKeyKind {
  using Value = HKEY;
  static void close(Value value) { RegCloseKey(value); }
};
using RegistryKey = Handle<RegistryKeyKind>;

struct GlobalMemoryKind {
  using Value = HGLOBAL;
  static void close(Value value) { GlobalFree(value); }
};
using GlobalMemory = Handle<GlobalMemoryKind>;

/// Files that were dropped on a window.
struct DropKind {
  using Value = HDROP;
  static void close(Value value) { DragFinish(value); }
};
using Drop = Handle<DropKind>;

}  // namespace quillhue
