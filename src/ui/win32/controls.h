#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/logic/geometry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Operations on child windows. The program's own texts are UTF-8; texts typed by the user are wide.

/// Parameters of createControl().
struct ControlDescription {
  const wchar_t* windowClass = nullptr;
  std::string_view text{};
  /// In addition to WS_CHILD.
  DWORD style = 0;
  DWORD extendedStyle = 0;
};
/// Creates a child of `parent` with size 0. `font` may be null for the system's default. Returns null on failure.
[[nodiscard]] Window createControl(HWND parent, HFONT font, const ControlDescription& description);

[[nodiscard]] std::wstring windowText(HWND window);
void setWindowText(HWND window, std::string_view text);

/// Returns the size of the client area.
[[nodiscard]] Size clientSize(HWND window);
/// Moves a child window without painting it or copying its pixels, which a neighbor may already cover. Call
/// repaintAll() after moving windows.
void moveTo(HWND window, const Rect& box);
/// Repaints a window with all its children.
void repaintAll(HWND window);
void show(HWND window, bool visible);
/// Enables or disables a window. If it loses the focus, the parent gets it; otherwise no window would have it.
void enable(HWND window, bool enabled);
void repaint(HWND window, bool erase = false);
void repaint(HWND window, const Rect& box, bool erase = false);

/// Sends a message to all children of a window.
void passToChildren(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

[[nodiscard]] bool isTicked(HWND button);
void tick(HWND button, bool ticked);

/// Combo boxes: add an item, choose an item by index, and return the index of the chosen item.
void addItem(HWND combo, std::string_view text);
void chooseItem(HWND combo, std::int32_t index);
[[nodiscard]] std::int32_t chosenItem(HWND combo);

/// Returns whether the window is a control of this system class.
[[nodiscard]] bool isControl(HWND window, const wchar_t* windowClass);

/// Returns the name of the first dropped file, truncated to MAX_PATH - 1 characters.
[[nodiscard]] std::wstring firstFile(const Drop& drop);

}  // namespace quillhue
