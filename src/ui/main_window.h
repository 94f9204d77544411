#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/document.h"
#include "core/services.h"
#include "ui/logic/geometry.h"
#include "ui/logic/settings_store.h"
#include "ui/main_ui.h"
#include "ui/services/clipboard.h"
#include "ui/services/file_dialogs.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/handle.h"
#include "ui/win32/open_dialog.h"

namespace quillhue {

/// What the main window and its screens work with. All of it lives longer than the window.
struct Workplace {
  SavedSettings& settings;
  SettingsStore& settingsStore;
  DocumentSlot& slot;
  Services& services;
  ColorChooser& colorChooser;
  FileDialogs& fileDialogs;
  Clipboard& clipboard;
  /// Where readme.txt is, without a backslash at the end.
  std::wstring programFolder;
};

/// The program's one window: menu bar, status bar, and the screen between them. Made and destroyed by its thread.
class MainWindow final : public CustomWindow, public DocumentObserver {
 public:
  /// Only the address of `workplace` is taken before create.
  explicit MainWindow(Workplace& workplace) : workplace_(workplace) {}
  ~MainWindow() override;

  /// Makes the window, with the intro screen, and shows it. When the system refuses, the text that says what;
  /// otherwise an empty one. Destroying the window writes the settings and ends the message loop.
  [[nodiscard]] std::string_view open(int showCommand);

  /// Gives a message of the loop to the accelerators, to the keyboard navigation or to its window.
  void take(MSG& message);

  /// Opens a palette file in place of the document, or shows why that can't be done.
  void openFile(const std::wstring& name);

  /// What a dialog or message box stands on: the window, or the dialog that is open already.
  [[nodiscard]] HWND dialogOwner() const { return openDialogOf(handle()); }
  [[nodiscard]] HFONT font() const { return font_.get(); }
  [[nodiscard]] Scale scale() const { return scale_; }
  [[nodiscard]] Workplace& workplace() const { return workplace_; }
  [[nodiscard]] Services& services() const { return workplace_.services; }
  [[nodiscard]] AppSettings& settings() const { return workplace_.settings.app; }
  [[nodiscard]] DocumentSlot& slot() const { return workplace_.slot; }
  /// The keyboard focus of the window's controls.
  [[nodiscard]] FocusKeeper& focus() { return focus_; }
  /// Null on the intro screen.
  [[nodiscard]] PaletteDocument* document() const { return workplace_.slot.document(); }
  /// True when no document would be lost, or the user has been asked and lets it go.
  [[nodiscard]] bool letsDocumentGo() const;
  /// The client area above the status bar.
  [[nodiscard]] Rect screenArea() const;

  /// Puts the editor's screen in place of the intro screen, which is destroyed.
  void showEditor();
  /// Brings greyed items and the radio mark up to date with the screen's commandState.
  void updateMenus();
  /// Opens a context menu (kNewPopup, kValuesPopup, kEffectsPopup) at a point of the screen. Its command arrives as any
  /// other.
  void openContextMenu(std::int32_t menu, Point screenPoint) const;

  /// Work that takes long and lets the window live meanwhile. Closing the window waits for its end.
  class Run {
   public:
    explicit Run(MainWindow& window);
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run();

    /// Handles all waiting messages. False when the user has closed the window: nothing that came later counts.
    [[nodiscard]] bool pumpMessages();

   private:
    MainWindow& window_;
  };

  // What the document shows of itself.
  void titleChanged(std::wstring_view title) override;
  void statusChanged(std::string_view text) override;
  void undoRedoChanged(bool canUndo, bool canRedo) override;
  void documentReplaced() override;

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;

  void created();
  void destroyed();
  void sized();
  void sizing(WPARAM edge, LPARAM lParam) const;
  void paint();
  void menuCommand(std::int32_t command);
  void controlNotification(WPARAM wParam, LPARAM lParam);
  [[nodiscard]] static LRESULT staticColors(HDC dc);
  void filesDropped(WPARAM wParam);
  [[nodiscard]] bool mayClose() const;
  [[nodiscard]] bool maySessionEnd() const;
  void sessionEnds(bool ends);
  void closeAsked();
  void runEnded() const;
  void saveSettings();

  Workplace& workplace_;
  HWND statusBar_ = nullptr;
  Scale scale_;
  Font font_;
  Accelerators accelerators_;
  Menu contextMenus_;
  std::unique_ptr<MainUI> screen_;
  FocusKeeper focus_;
  bool runIsOn_ = false;
  bool closesAfterRun_ = false;
};

}  // namespace quillhue
