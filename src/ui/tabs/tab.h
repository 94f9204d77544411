#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

struct Command;

/// What has happened to the document that makes every tab begin anew.
enum class DocumentChange : std::uint8_t {
  /// Another document was opened.
  replaced,
  /// The same one has another size.
  resized,
};

/// A page of the editor. Its controls are children of the main window, which lie on the tab control.
class Tab {
 public:
  Tab() = default;
  Tab(const Tab&) = delete;
  Tab& operator=(const Tab&) = delete;
  virtual ~Tab() = default;

  /// Every message that neither the main window nor the editor's frame answers.
  virtual LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
  /// The page's area in the main window.
  virtual void layout(const Rect& area) = 0;
  /// WM_COMMAND or a scroll message from a control.
  virtual void controlNotification(HWND control, WPARAM wParam) = 0;
  /// The document's colors or selection have changed.
  virtual void paletteChanged() = 0;
  virtual void documentReplaced(DocumentChange change) = 0;
  virtual void show() = 0;
  virtual void hide() = 0;
  /// False when nothing was copied.
  virtual bool copy() = 0;
  virtual void paste() = 0;
  virtual void clear() = 0;
  /// Carries out a command on the palette.
  virtual void change(const Command& /*command*/) {}
  /// The system's color chooser for the current entry.
  virtual void editColor() {}
  /// Whether the tab has an entry for commands that need one.
  [[nodiscard]] virtual bool hasCurrentEntry() const = 0;
};

}  // namespace quillhue
