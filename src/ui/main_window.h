#pragma once

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
#include "ui/used_file.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/dialog_owner.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/handle.h"
#include "ui/win32/status_bar.h"
#include "ui/win32/system.h"
#include "ui/window_closing.h"
#include "ui/window_context.h"

namespace quillhue {

/// Parts of the program that the main window uses. All are complete and outlive it.
struct WindowParts {
  SavedSettings& settings;
  SettingsStore& settingsStore;
  DocumentSlot& slot;
  Messages& messages;
  FileQuestions& fileQuestions;
  PaletteClipboard& clipboard;
  ScreenPalette& screen;
  /// Set by the main window when it is created.
  DialogOwner& dialogOwner;
  WindowServices services;
  /// Called with the name of each palette file that was opened or saved.
  UsedFile::Use fileUsed;

  using MakeScreen = std::function<std::unique_ptr<MainUI>(WindowContext& context)>;
  MakeScreen makeIntro;
  MakeScreen makeEditor;
};

/// The program's main window: menu bar, status bar, and the screen between them. Use it from one thread only.
class MainWindow final : public CustomWindow, public DocumentObserver, private WindowFrame {
 public:
  explicit MainWindow(WindowParts parts);
  ~MainWindow() override;

  /// Creates the window with the intro screen and shows it. Returns an error message, which is empty on success.
  /// Destroying the window writes the settings and ends the message loop.
  [[nodiscard]] std::string_view open(int showCommand);

  /// Passes a message to the accelerators, the keyboard navigation or its window.
  void dispatch(MSG& message);
  void openFile(const std::wstring& name) override;
  void documentSaved() override;

  // Notifications from the document.
  void titleChanged(const std::wstring& title) noexcept override;
  void statusChanged(std::string_view text) noexcept override;
  void undoRedoChanged(bool canUndo, bool canRedo) noexcept override;
  void documentReplaced() noexcept override;

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Answers messages about the session, the focus and the look of the system; the screen gets all others.
  LRESULT answerSystem(UINT message, WPARAM wParam, LPARAM lParam);

  [[nodiscard]] Rect screenArea() const override;
  void updateMenus() override;
  void showEntryText(const std::string& text) override;
  void openContextMenu(std::int32_t menu, Point screenPoint) const override;
  void showEditor() override;
  [[nodiscard]] bool confirmDiscard() override;
  void beginRun() override { closing_.beginRun(); }
  void endRun() override { closing_.endRun(); }
  [[nodiscard]] bool pumpMessages() override;

  [[nodiscard]] PaletteDocument* document() const { return parts_.slot.document(); }
  void created();
  void destroyed();
  void sized();
  void sizing(WPARAM edge, LPARAM lParam) const;
  void paint();
  void menuCommand(std::int32_t command);
  void controlNotification(WPARAM wParam, LPARAM lParam);
  [[nodiscard]] static LRESULT staticColors(HDC dc);
  void filesDropped(WPARAM wParam);
  void sessionEnds(bool ends);
  void saveSettings();

  WindowParts parts_;
  Services services_;
  std::unique_ptr<StatusBar> statusBar_;
  Font font_;
  Accelerators accelerators_;
  Menu contextMenus_;
  FocusKeeper focus_;
  // Used by the screens. Set when the window is created.
  std::unique_ptr<WindowContext> context_;
  std::unique_ptr<MainUI> screen_;
  UsedFile usedFile_;
  WindowClosing closing_;
};

}  // namespace quillhue
