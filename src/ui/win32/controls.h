#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/logic/geometry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Child windows and what is done with them. Texts are UTF-8 where they are the program's own, wide where the user
/// types them.

/// What a child window is made of.
struct ControlDescription {
  const wchar_t* windowClass = nullptr;
  std::string_view text{};
  /// Beside WS_CHILD.
  DWORD style = 0;
  DWORD extendedStyle = 0;
};
/// A child of `parent` of no size, in the font if that is not null. Null when the system refuses.
[[nodiscard]] Window createControl(HWND parent, HFONT font, const ControlDescription& description);

[[nodiscard]] std::wstring windowText(HWND window);
void setWindowText(HWND window, std::string_view text);

/// The client area, from 0, 0 on.
[[nodiscard]] Size clientSize(HWND window);
/// Moves a child window and paints nothing: a window that is moved alone copies pixels that its neighbor may cover by
/// then. Whoever has moved windows calls repaintAll.
void moveTo(HWND window, const Rect& box);
/// Repaints a window with all its children.
void repaintAll(HWND window);
void show(HWND window, bool visible);
/// Disabled, a window leaves the focus to its parent: otherwise no window would have it.
void enable(HWND window, bool enabled);
void repaint(HWND window, bool erase = false);
void repaint(HWND window, const Rect& box, bool erase = false);

/// Sends a message to all children of a window.
void passToChildren(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

[[nodiscard]] bool isTicked(HWND button);
void tick(HWND button, bool ticked);

/// Combo boxes: adds an item, and the index of the chosen one.
void addItem(HWND combo, std::string_view text);
void chooseItem(HWND combo, std::int32_t index);
[[nodiscard]] std::int32_t chosenItem(HWND combo);

/// Whether the window is a control of this class of the system's.
[[nodiscard]] bool isControl(HWND window, const wchar_t* windowClass);

/// The name of the first dropped file, of which at most MAX_PATH - 1 characters are taken.
[[nodiscard]] std::wstring firstFile(const Drop& drop);

/// A short text that appears beside a control under the pointer, even while its window is inactive.
[[nodiscard]] Window createTooltip(HWND owner, HWND control, std::string_view text);

}  // namespace quillhue
