#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/palette_entry.h"
#include "ui/logic/geometry.h"
#include "ui/support/program.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Functions that describe the current state of windows and controls.

/// The class of dialogs and message boxes.
inline constexpr const wchar_t* kDialogClass = L"#32770";

/// Callback for the system's enumerations: adds the window to the std::vector<HWND> at this address.
BOOL CALLBACK addWindow(HWND window, LPARAM windows);

[[nodiscard]] std::wstring windowClass(HWND window);
/// Returns the text of a title, a button, a static control or an edit field.
[[nodiscard]] std::wstring textOf(HWND window);

/// Returns the visible controls of the window in tab order. Children come right after their parent. A null class or
/// text means any.
[[nodiscard]] std::vector<HWND> findControls(HWND parent, const wchar_t* className = nullptr);
/// Returns the first such control, or null.
[[nodiscard]] HWND findControl(HWND parent, const wchar_t* className, const wchar_t* text = nullptr);
[[nodiscard]] HWND tabControl(const Program& program);

/// Returns the texts of all visible static controls, one per line.
[[nodiscard]] std::wstring dialogText(HWND dialog);

[[nodiscard]] Size outerSizeOf(HWND window);
/// Returns the window's box in screen coordinates.
[[nodiscard]] Rect boxOnScreen(HWND window);
/// Returns a control's box in client coordinates of its parent.
[[nodiscard]] Rect boxInParent(HWND control);
[[nodiscard]] Point onScreen(HWND window, Point point);
[[nodiscard]] Point middleOf(const Rect& box);

/// Returns the color that the screen shows at a point of the window's client area.
[[nodiscard]] PaletteEntry pixelOf(HWND window, Point point);
/// Returns the colors that the screen shows in the window's client area, row by row.
[[nodiscard]] std::vector<std::uint32_t> pixelsOf(HWND window);
/// Returns a system color such as COLOR_BTNFACE.
[[nodiscard]] PaletteEntry systemColor(int color);

/// Returns the focused window of the program, or null.
[[nodiscard]] HWND focusOf(const Program& program);

/// Returns the text of a part of the status bar. The first part shows the number of entries.
[[nodiscard]] std::wstring statusText(const Program& program, int part = 0);

}  // namespace quillhue
