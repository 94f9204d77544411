#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

struct Command;

/// Changes of the document after which every tab is rebuilt.
enum class DocumentChange : std::uint8_t {
  /// Another document was opened.
  replaced,
  /// The size of the document has changed.
  resized,
};

/// A page of the editor. Its controls are children of the main window and are above the tab control.
class Tab {
 public:
  Tab() = default;
  Tab(const Tab&) = delete;
  Tab& operator=(const Tab&) = delete;
  virtual ~Tab() = default;

  /// Answers a message that neither the main window nor the editor's screen answers.
  virtual LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// Lays the page out. `area` is its area in client coordinates of the main window.
  virtual void layout(const Rect& area) = 0;
  /// Handles WM_COMMAND or a scroll message from a control.
  virtual void controlNotification(HWND control, WPARAM wParam) = 0;
  /// Called after the document's colors or selection have changed.
  virtual void paletteChanged() = 0;
  virtual void documentReplaced(DocumentChange change) = 0;
  virtual void show() = 0;
  virtual void hide() = 0;
  /// Returns false if nothing was copied.
  virtual bool copy() = 0;
  virtual void paste() = 0;
  virtual void clear() = 0;
  /// Carries out a command on the palette.
  virtual void change(const Command& /*command*/) {}
  /// Opens the system's color dialog for the current entry.
  virtual void editColor() {}
  /// Returns whether the tab has a current entry, which some commands need.
  [[nodiscard]] virtual bool hasCurrentEntry() const = 0;
};

}  // namespace quillhue
