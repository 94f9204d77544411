#include "ui/services/message_boxes.h"

#include "core/utf8.h"
#include "ui/logic/window_texts.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

int show(const DialogOwner& owner, std::string_view text, std::string_view caption, UINT style) {
  return MessageBoxW(owner.top(), fromUtf8(text).c_str(), fromUtf8(caption).c_str(), style);
}

}  // namespace

void MessageBoxes::information(std::string_view text) {
  show(owner_, text, kInformationCaption, MB_OK | MB_ICONINFORMATION);
}

void MessageBoxes::error(std::string_view text) { show(owner_, text, kErrorCaption, MB_OK | MB_ICONERROR); }

SaveChangesAnswer MessageBoxes::askSaveChanges(std::string_view text) {
  switch (show(owner_, text, kWarningCaption, MB_YESNOCANCEL | MB_ICONEXCLAMATION)) {
    case IDYES:
      return SaveChangesAnswer::yes;
    case IDNO:
      return SaveChangesAnswer::no;
    default:
      return SaveChangesAnswer::cancel;
  }
}

bool MessageBoxes::askReplaceFile(std::string_view text) {
  return show(owner_, text, kSaveAsCaption, MB_YESNO | MB_ICONEXCLAMATION) == IDYES;
}

}  // namespace quillhue
