#pragma once

#include <string>

#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A dialog or message box of the program.
class Dialog {
 public:
  /// Waits for the dialog with this caption.
  Dialog(const Program& program, const std::wstring& caption);

  [[nodiscard]] HWND window() const { return window_; }
  /// Returns the texts of the dialog, one per line.
  [[nodiscard]] std::wstring text() const;
  /// Returns a control by its id. A missing control ends the test.
  [[nodiscard]] HWND control(int id) const;
  /// Replaces the text of an edit field, like typing.
  void type(int id, const std::wstring& text) const;
  [[nodiscard]] std::wstring typed(int id) const;

  /// Presses a button.
  void press(int id) const;
  /// Presses a button, and waits until the dialog is closed and its owner is enabled.
  void answer(int id) const;

 private:
  const Program& program_;
  std::wstring caption_;
  HWND window_;
};

/// Answers the message box with this caption, and returns its text.
std::wstring answerMessage(const Program& program, const std::wstring& caption, int button);

/// Returns the name field of one of the system's file dialogs, or null for another dialog.
[[nodiscard]] HWND fileNameField(HWND dialog);
/// Waits for the dialog "Open" or "Save As", enters a file name and chooses the file type with this index. -1 keeps the
/// type.
void chooseFile(const Program& program, const std::wstring& caption, const std::wstring& name, int type = -1);

}  // namespace quillhue
