#include "ui/support/dialog.h"

#include "ui/support/windows.h"

namespace quillhue {

Dialog::Dialog(const Program& program, const std::wstring& caption)
    : program_(program), caption_(caption), window_(program.await("the dialog \"" + narrow(caption) + '"', [&] {
        HWND dialog = program.topWindow(kDialogClass);
        return dialog != nullptr && textOf(dialog) == caption ? dialog : nullptr;
      })) {}

std::wstring Dialog::text() const { return dialogText(window_); }

HWND Dialog::control(int id) const {
  if (HWND found = GetDlgItem(window_, id)) {
    return found;
  }
  throw ProgramError("the dialog \"" + narrow(caption_) + "\" has no control " + std::to_string(id));
}

void Dialog::type(int id, const std::wstring& text) const {
  program_.ask(control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::wstring Dialog::typed(int id) const { return textOf(control(id)); }

void Dialog::press(int id) const { program_.post(control(id), BM_CLICK); }

void Dialog::answer(int id) const {
  press(id);
  program_.await("the dialog \"" + narrow(caption_) + "\" to close",
                 [&] { return IsWindow(window_) == 0 || IsWindowVisible(window_) == 0; });
}

std::wstring answerMessage(const Program& program, const std::wstring& caption, int button) {
  const Dialog box(program, caption);
  const std::wstring text = box.text();
  box.answer(button);
  return text;
}

HWND fileNameField(HWND dialog) {
  // The id depends on the kind of the dialog.
  constexpr int kNameCombo = 0x47C;
  constexpr int kNameEdit = 0x480;
  HWND combo = GetDlgItem(dialog, kNameCombo);
  return combo != nullptr && IsWindowVisible(combo) != 0 ? combo : GetDlgItem(dialog, kNameEdit);
}

void chooseFile(const Program& program, const std::wstring& caption, const std::wstring& name, int type) {
  constexpr int kTypes = 0x470;
  const Dialog dialog(program, caption);
  HWND field = program.await("the field for the name", [&] { return fileNameField(dialog.window()); });
  if (type >= 0) {
    HWND types = dialog.control(kTypes);
    program.ask(types, CB_SETCURSEL, static_cast<WPARAM>(type));
    for (const int notification : {CBN_SELENDOK, CBN_SELCHANGE}) {
      program.ask(GetParent(types), WM_COMMAND, MAKEWPARAM(kTypes, notification), reinterpret_cast<LPARAM>(types));
    }
  }
  program.ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
  dialog.answer(IDOK);
}

}  // namespace quillhue
