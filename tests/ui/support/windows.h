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

/// Windows and controls of the program, as they are now.

/// Of dialogs and message boxes.
inline constexpr const wchar_t* kDialogClass = L"#32770";

/// For the system's enumerations: adds it to the std::vector<HWND> at that address.
BOOL CALLBACK addWindow(HWND window, LPARAM windows);

[[nodiscard]] std::wstring windowClass(HWND window);
/// Of a title, a button, a static text; of an edit field what is typed there.
[[nodiscard]] std::wstring textOf(HWND window);

/// The visible ones in the window, in the order in which the Tab key goes, children before what follows their parent.
/// A null class or text stands for any.
[[nodiscard]] std::vector<HWND> findControls(HWND parent, const wchar_t* className = nullptr);
/// The first one; null if there is none.
[[nodiscard]] HWND findControl(HWND parent, const wchar_t* className, const wchar_t* text = nullptr);
[[nodiscard]] HWND tabControl(const Program& program);

/// The texts of all visible static controls, a line each.
[[nodiscard]] std::wstring dialogText(HWND dialog);

[[nodiscard]] Size outerSizeOf(HWND window);
/// On the screen.
[[nodiscard]] Rect boxOnScreen(HWND window);
/// A control's box in the client area of its parent.
[[nodiscard]] Rect boxInParent(HWND control);
[[nodiscard]] Point onScreen(HWND window, Point point);
[[nodiscard]] Point middleOf(const Rect& box);

/// The color on the screen at a point of the window's client area.
[[nodiscard]] PaletteEntry pixelOf(HWND window, Point point);
/// The colors on the screen of the window's client area, row by row.
[[nodiscard]] std::vector<std::uint32_t> pixelsOf(HWND window);
/// One of the system's colors, COLOR_BTNFACE and so on.
[[nodiscard]] PaletteEntry systemColor(int color);

/// The focused window of the program; null for none.
[[nodiscard]] HWND focusOf(const Program& program);

/// A part of the main window's status bar; the first one tells how many entries the palette has.
[[nodiscard]] std::wstring statusText(const Program& program, int part = 0);

}  // namespace quillhue
