#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// A dialog that disables its owner until it is closed. A template of the resources tells its controls and layout; Esc
/// and the close button close it.
class ModalDialog {
 public:
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;

  /// Shows the dialog in the middle of its owner and returns when it is closed, at once if the system refuses it. All
  /// controls use the font, which the template's should equal in size: it is the template's that gives the layout.
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
  /// Fills the controls, none of which has the focus yet. The first tab stop gets it then.
  virtual void opened() = 0;
  /// WM_COMMAND of a control, but for Cancel.
  virtual void command(int id, int notification) = 0;
  /// WM_NOTIFY of a control. True for an answer other than 0.
  [[nodiscard]] virtual bool notified(const NMHDR& /*notification*/) { return false; }
  /// Last chance to give back what belongs to the controls.
  virtual void closing() {}

  static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR answer(UINT message, WPARAM wParam, LPARAM lParam);
  void initialize();
  void centerOverOwner() const;

  HWND window_ = nullptr;
  HFONT font_ = nullptr;
};

}  // namespace quillhue
