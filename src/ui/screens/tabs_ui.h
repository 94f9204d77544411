#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "core/document.h"
#include "ui/main_ui.h"
#include "ui/screens/shared_commands.h"
#include "ui/tabs/tab.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The editor's screen: three tabs, of which one is active and visible, and the commands on the whole document. There
/// is a document during its whole lifetime.
class TabsUI final : public MainUI, private SharedCommands {
 public:
  explicit TabsUI(WindowContext& context);
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

  /// Returns the area of the pages in client coordinates of the main window.
  [[nodiscard]] Rect pageArea() const;
  void chooseTab();
  /// Goes forward by `steps` tabs. After the last tab comes the first.
  void stepTab(std::size_t steps);

  void savePalette() override;
  void savePaletteAs() override;
  void undo() override { stepThroughHistory(&PaletteDocument::undo); }
  void redo() override { stepThroughHistory(&PaletteDocument::redo); }
  void cut() override;
  void copy() override;
  void paste() override { active_->paste(); }
  void clear() override { active_->clear(); }
  void resizePalette() override;
  void countColors() override;
  void averageColor() override;
  void editColor() override { active_->editColor(); }
  void nextTab() override { stepTab(1); }
  void previousTab() override { stepTab(kTabs - 1); }

  void stepThroughHistory(void (PaletteDocument::*step)());
  void rebuild(DocumentChange change);

  Window tabControl_;
  // In the order of the tab control's pages.
  std::array<std::unique_ptr<Tab>, kTabs> tabs_;
  Tab* active_ = nullptr;
};

}  // namespace quillhue
