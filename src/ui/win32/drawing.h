#pragma once

#include "core/palette_entry.h"
#include "ui/logic/geometry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Conversion of geometry and colors to the system's types, and drawing.

[[nodiscard]] constexpr RECT toSystem(const Rect& box) { return {box.left, box.top, box.right, box.bottom}; }
[[nodiscard]] constexpr Rect fromSystem(const RECT& box) { return {box.left, box.top, box.right, box.bottom}; }
[[nodiscard]] constexpr Point fromSystem(const POINT& point) { return {point.x, point.y}; }
[[nodiscard]] constexpr POINT toSystem(const Point& point) { return {point.x, point.y}; }

[[nodiscard]] constexpr COLORREF toSystem(const PaletteEntry& color) {
  return static_cast<COLORREF>(color.red) | static_cast<COLORREF>(color.green) << 8U |
         static_cast<COLORREF>(color.blue) << 16U;
}
[[nodiscard]] constexpr PaletteEntry fromSystem(COLORREF color) {
  return {static_cast<std::uint8_t>(color), static_cast<std::uint8_t>(color >> 8U),
          static_cast<std::uint8_t>(color >> 16U)};
}

/// Returns the point of a mouse message, in client or screen coordinates depending on the message.
[[nodiscard]] Point pointOf(LPARAM lParam);

/// Returns the screen's logical pixels per inch.
[[nodiscard]] std::int32_t screenDpi();

/// Fill a box with a color or with a system color such as COLOR_WINDOW. Create no GDI object.
void fillBox(HDC dc, const Rect& box, COLORREF color);
void fillBoxWithSystemColor(HDC dc, const Rect& box, int systemColor);
/// Draws the outline of a box, `thickness` pixels wide, inside its edges.
void frameBox(HDC dc, const Rect& box, std::int32_t thickness, COLORREF color);

/// Selects an object into a device context, and restores the previous one at the end.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, before_); }

 private:
  HDC dc_;
  HGDIOBJ before_;
};

/// Device context for WM_PAINT.
class PaintDc {
 public:
  explicit PaintDc(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;
  ~PaintDc() { EndPaint(window_, &paint_); }

  [[nodiscard]] HDC get() const { return dc_; }
  /// The box that needs repainting.
  [[nodiscard]] Rect box() const { return fromSystem(paint_.rcPaint); }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

/// Paints a part of a device context off the screen, and copies it there at the end. Uses the coordinates of the device
/// context.
class BackBuffer {
 public:
  BackBuffer(HDC target, const Rect& box);
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;
  ~BackBuffer();

  [[nodiscard]] HDC get() const { return dc_.get(); }

 private:
  HDC target_;
  Rect box_;
  MemoryDc dc_;
  Bitmap bitmap_;
  Selected selected_;
};

}  // namespace quillhue
