#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "core/palette_entry.h"
#include "ui/logic/geometry.h"
#include "ui/support/program.h"

namespace quillhue {

/// Windows and controls of the program, as they are now.

[[nodiscard]] std::wstring windowClass(HWND window);
/// Of a title, a button, a static text; of an edit field what is typed there.
[[nodiscard]] std::wstring textOf(HWND window);

/// All windows in the window, in the order in which the Tab key goes, children before what follows their parent.
[[nodiscard]] std::vector<HWND> windowsIn(HWND parent);
/// The one of this class and text that is visible; null if there is none. A null text stands for any.
[[nodiscard]] HWND findControl(HWND parent, const wchar_t* className, const wchar_t* text = nullptr);
[[nodiscard]] std::vector<HWND> findControls(HWND parent, const wchar_t* className);

/// The texts of all visible static controls, a line each.
[[nodiscard]] std::wstring dialogText(HWND dialog);

[[nodiscard]] Size clientSizeOf(HWND window);
[[nodiscard]] Size outerSizeOf(HWND window);
/// On the screen.
[[nodiscard]] Rect boxOnScreen(HWND window);
/// A control's box in the client area of its parent.
[[nodiscard]] Rect boxInParent(HWND control);
[[nodiscard]] Point onScreen(HWND window, Point point);

/// What the user sees at a point of the window's client area.
[[nodiscard]] PaletteEntry pixelOf(HWND window, Point point);

/// The focused window of the program; null for none.
[[nodiscard]] HWND focusOf(const Program& program);

/// A part of the main window's status bar.
[[nodiscard]] std::wstring statusText(const Program& program, int part);

/// The page that the tab control shows as chosen, and a choice by the mouse.
[[nodiscard]] HWND tabControl(const Program& program);
[[nodiscard]] int chosenPage(const Program& program);
void choosePage(const Program& program, int page);

}  // namespace quillhue
