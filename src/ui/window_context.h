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

/// What a screen may ask of the window around it.
class WindowFrame {
 public:
  WindowFrame() = default;
  WindowFrame(const WindowFrame&) = delete;
  WindowFrame& operator=(const WindowFrame&) = delete;
  virtual ~WindowFrame() = default;

  /// The client area above the status bar.
  [[nodiscard]] virtual Rect screenArea() const = 0;
  /// Brings greyed items and the radio mark up to date with the screen's commandState.
  virtual void updateMenus() = 0;
  /// Opens a context menu (kNewPopup, kValuesPopup, kEffectsPopup) at a point of the screen. Its command arrives as any
  /// other.
  virtual void openContextMenu(std::int32_t menu, Point screenPoint) const = 0;
  /// Puts the editor's screen in place of the intro screen, which is destroyed.
  virtual void showEditor() = 0;
  /// Opens a palette file in place of the document, or shows why that can't be done.
  virtual void openFile(const std::wstring& name) = 0;
  /// True when no document would be lost, or the user has been asked and agrees.
  [[nodiscard]] virtual bool confirmDiscard() = 0;

  /// A run is long work during which the window lives on. Closing the window waits for its end.
  virtual void beginRun() = 0;
  virtual void endRun() = 0;
  /// Handles all waiting messages during a run. False when the user has closed the window: nothing that came later
  /// counts.
  [[nodiscard]] virtual bool pumpMessages() = 0;
};

/// The parts of the program that only its window uses.
struct WindowServices {
  const DialogOwner& dialogOwner;
  FileDialogs& fileDialogs;
  /// For bitmaps; palettes go through Services.
  Clipboard& clipboard;
  ColorChooser& colorChooser;
  /// Holds readme.txt; without a backslash at the end.
  std::wstring programFolder;
};

/// What screens and tabs work with. All of it lives longer than they do.
struct WindowContext {
  HWND window;
  HFONT font;
  Scale scale;
  DocumentSlot& slot;
  Services& services;
  WindowServices& windowServices;
  FocusKeeper& focus;
  WindowFrame& frame;

  /// Null on the intro screen.
  [[nodiscard]] PaletteDocument* document() const { return slot.document(); }
  [[nodiscard]] AppSettings& settings() const { return services.settings; }
};

}  // namespace quillhue
