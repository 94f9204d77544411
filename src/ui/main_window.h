#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
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
#include "ui/win32/handle.h"

namespace quillhue {

/// What the main window and its screens work with. All of it lives longer than the window.
struct Workplace {
  SavedSettings& settings;
  DocumentSlot& slot;
  Services& services;
  ColorChooser& colorChooser;
  FileDialogs& fileDialogs;
  Clipboard& clipboard;
  /// Where readme.txt is, without a backslash at the end.
  std::wstring programFolder;
};

/// The program's one window: menu bar, status bar, and the screen between them.
class MainWindow final : public DocumentObserver {
 public:
  explicit MainWindow(Workplace& workplace) : workplace_(workplace) {}
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow() override;

  /// Makes the window and shows it. When the system refuses, the text that says what it refused.
  [[nodiscard]] std::string_view create(HINSTANCE instance, int showCommand);

  /// Gives a message to accelerators, keyboard navigation or its window.
  void handle(MSG& message);

  /// Null before create and after the window is destroyed.
  [[nodiscard]] HWND handle() const { return window_; }
  /// What a dialog or message box stands on: the window, or the dialog that is open already.
  [[nodiscard]] HWND dialogOwner() const { return GetLastActivePopup(window_); }
  [[nodiscard]] HFONT font() const { return font_.get(); }
  [[nodiscard]] Scale scale() const { return scale_; }
  [[nodiscard]] Workplace& workplace() const { return workplace_; }
  [[nodiscard]] Services& services() const { return workplace_.services; }
  [[nodiscard]] AppSettings& settings() const { return workplace_.settings.app; }
  [[nodiscard]] DocumentSlot& slot() const { return workplace_.slot; }
  /// Null on the intro screen.
  [[nodiscard]] PaletteDocument* document() const { return workplace_.slot.document(); }
  /// The client area above the status bar.
  [[nodiscard]] Rect screenArea() const;

  /// Puts the editor's screen in place of the intro screen.
  void showEditor();
  /// Brings greyed items and radio marks up to date with the screen's commandState.
  void updateMenus();
  /// Opens a context menu (kNewPopup, kValuesPopup, kEffectsPopup) at a point of the screen. Its command arrives as any
  /// other.
  void openContextMenu(std::int32_t menu, Point screenPoint);

  /// Work that takes long and lets the window live meanwhile. Closing the window waits for its end.
  class Run {
   public:
    explicit Run(MainWindow& window);
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run();

    /// Handles all waiting messages. False when the user has decided to close the window.
    [[nodiscard]] bool pumpMessages();

   private:
    MainWindow& window_;
  };

  // What the document shows.
  void titleChanged(std::wstring_view title) override;
  void statusChanged(std::string_view text) override;
  void undoRedoChanged(bool canUndo, bool canRedo) override;
  void documentReplaced() override;

 private:
  static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam);

  void created();
  void destroyed();
  void sized(WPARAM kind);
  LRESULT sizing(WPARAM edge, LPARAM lParam) const;
  void paint();
  void command(WPARAM wParam, LPARAM lParam);
  void filesDropped(WPARAM wParam);
  void closeAsked();

  Workplace& workplace_;
  HWND window_ = nullptr;
  HWND statusBar_ = nullptr;
  Scale scale_;
  Font font_;
  Accelerators accelerators_;
  Menu contextMenus_;
  std::unique_ptr<MainUI> screen_;
  bool runIsOn_ = false;
  bool closesAfterRun_ = false;
};

}  // namespace quillhue
