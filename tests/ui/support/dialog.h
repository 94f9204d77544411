#pragma once

#include <string>

#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A dialog or message box of the program.
class Dialog {
 public:
  /// Waits until the one with this caption is there.
  Dialog(const Program& program, const std::wstring& caption);

  [[nodiscard]] HWND window() const { return window_; }
  /// The texts on it, a line each.
  [[nodiscard]] std::wstring text() const;
  /// A control by its number; one that is not there ends the test.
  [[nodiscard]] HWND control(int id) const;
  /// Puts a text into an edit field, as typing does.
  void type(int id, const std::wstring& text) const;
  [[nodiscard]] std::wstring typed(int id) const;

  /// Presses a button.
  void press(int id) const;
  /// Presses a button, and waits until the dialog is gone and its owner can be used.
  void answer(int id) const;

 private:
  const Program& program_;
  std::wstring caption_;
  HWND window_;
};

/// Answers the message box with this caption, and returns what it said.
std::wstring answerMessage(const Program& program, const std::wstring& caption, int button);

/// The field for the name in one of the system's file dialogs; null in another dialog.
[[nodiscard]] HWND fileNameField(HWND dialog);
/// Gives a file's name to the dialog "Open" or "Save As" that is about to come, and the file type at an index of its
/// list, -1 for the one that is chosen already.
void chooseFile(const Program& program, const std::wstring& caption, const std::wstring& name, int type = -1);

}  // namespace quillhue
