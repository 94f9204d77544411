#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <memory>

#include "core/document.h"
#include "ui/main_ui.h"
#include "ui/tabs/tab.h"
#include "ui/win32/handle.h"

namespace quillhue {

class MainWindow;

/// The screen of a palette: three tabs, of which one is active and visible, and the commands on the document as a
/// whole. There is a document as long as this lives.
class TabsUI final : public MainUI {
 public:
  explicit TabsUI(MainWindow& window);
  TabsUI(const TabsUI&) = delete;
  TabsUI& operator=(const TabsUI&) = delete;
  ~TabsUI() override;

  void menuCommand(std::int32_t command) override;
  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void resize(Size area) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  void paint(HDC dc, const Rect& area) override;
  void documentReplaced() override;
  [[nodiscard]] CommandState commandState() const override;

 private:
  static constexpr std::size_t kTabs = 3;

  /// The page's area in the main window.
  [[nodiscard]] Rect pageArea() const;
  void chooseTab();
  void frameCommand(std::int32_t command);
  void stepThroughHistory(void (PaletteDocument::*step)());
  void resizePalette();
  void rebuild(DocumentChange change);

  MainWindow& window_;
  Window tabControl_;
  // In the order of the pages.
  std::array<std::unique_ptr<Tab>, kTabs> tabs_;
  Tab* active_ = nullptr;
};

}  // namespace quillhue
