#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// A dialog that disables its owner until it is closed. A resource template defines its controls and layout. Esc and
/// the close button close it.
class ModalDialog {
 public:
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;

  /// Shows the dialog centered on its owner and returns when it is closed, or at once on failure. All controls use
  /// `font`. It should have the size of the template's font, which determines the layout.
  void run(HWND owner, const wchar_t* templateName, HFONT font);

 protected:
  ModalDialog() = default;
  ~ModalDialog() = default;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND control(int id) const { return GetDlgItem(window_, id); }
  /// Gives the focus to a control and selects its text.
  void focus(int id) const;
  void close() const;

 private:
  /// Fills the controls. The first tab stop gets the focus afterwards.
  virtual void opened() = 0;
  /// Handles WM_COMMAND of a control other than Cancel.
  virtual void command(int id, int notification) = 0;
  /// Handles WM_NOTIFY of a control. Returns the result of the message.
  [[nodiscard]] virtual bool notified(const NMHDR& /*notification*/) { return false; }
  /// Releases what belongs to the controls before they are destroyed.
  virtual void closing() {}

  static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR answer(UINT message, WPARAM wParam, LPARAM lParam);
  void initialize();
  void centerOverOwner() const;

  HWND window_ = nullptr;
  HFONT font_ = nullptr;
};

}  // namespace quillhue
