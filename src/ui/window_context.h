#pragma once

#include <cstdint>
#include <string>

#include "core/document.h"
#include "core/services.h"
#include "ui/logic/geometry.h"
#include "ui/win32/dialog_owner.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/system.h"

namespace quillhue {

class Clipboard;
class FileDialogs;

/// Operations of the main window that its screens use.
class WindowFrame {
 public:
  WindowFrame() = default;
  WindowFrame(const WindowFrame&) = delete;
  WindowFrame& operator=(const WindowFrame&) = delete;
  virtual ~WindowFrame() = default;

  /// The client area above the status bar.
  [[nodiscard]] virtual Rect screenArea() const = 0;
  /// Updates the greyed items and the radio mark of the menus to the screen's commandState().
  virtual void updateMenus() = 0;
  /// Shows text about the current entry in the middle of the status bar.
  virtual void showEntryText(const std::string& text) = 0;
  /// Opens a context menu (kNewPopup, kValuesPopup, kEffectsPopup) at a point in screen coordinates. The chosen command
  /// arrives as a menu command.
  virtual void openContextMenu(std::int32_t menu, Point screenPoint) const = 0;
  /// Replaces the intro screen by the editor's screen.
  virtual void showEditor() = 0;
  /// Opens a palette file as the new document, or shows an error message.
  virtual void openFile(const std::wstring& name) = 0;
  /// Call this after the document was saved.
  virtual void documentSaved() = 0;
  /// Asks the user about unsaved changes, if there are any. Returns true if the document may be discarded.
  [[nodiscard]] virtual bool confirmDiscard() = 0;

  /// Mark the beginning and end of a run: long work during which the window still answers. Closing the window waits for
  /// the end of the run.
  virtual void beginRun() = 0;
  virtual void endRun() = 0;
  /// Handles all waiting messages during a run. Returns false if the user has closed the window. Later messages are
  /// then left unhandled.
  [[nodiscard]] virtual bool pumpMessages() = 0;
};

/// Parts of the program that only the main window and its screens use.
struct WindowServices {
  const DialogOwner& dialogOwner;
  FileDialogs& fileDialogs;
  /// For bitmaps only. Palettes use Services.
  Clipboard& clipboard;
  ColorChooser& colorChooser;
  /// The folder that contains readme.txt, without a backslash at the end.
  std::wstring programFolder;
};

/// Objects that screens and tabs use. All outlive the screens and tabs.
struct WindowContext {
  HWND window;
  HFONT font;
  Scale scale;
  DocumentSlot& slot;
  Services& services;
  WindowServices& windowServices;
  FocusKeeper& focus;
  WindowFrame& frame;

  /// The current document, or null on the intro screen.
  [[nodiscard]] PaletteDocument* document() const { return slot.document(); }
  [[nodiscard]] AppSettings& settings() const { return services.settings; }
};

}  // namespace quillhue
