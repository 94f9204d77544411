#include "ui/application.h"

#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include <optional>
#include <string>
#include <string_view>

#include "core/utf8.h"
#include "ui/logic/window_texts.h"
#include "ui/win32/command_line.h"
#include "ui/win32/drawing.h"

namespace quillhue {

Application::Application()
    : settings_(readSettings(store_, Scale{screenDpi()})),
      window_(workplace_),
      messages_(window_),
      fileDialogs_(window_),
      clipboard_(window_),
      colorDialog_(window_),
      services_{.settings = settings_.app,
                .messages = messages_,
                .observer = window_,
                .fileQuestions = fileDialogs_,
                .clipboard = clipboard_,
                .screen = screen_},
      workplace_{.settings = settings_,
                 .settingsStore = store_,
                 .slot = slot_,
                 .services = services_,
                 .colorChooser = colorDialog_,
                 .fileDialogs = fileDialogs_,
                 .clipboard = clipboard_,
                 .programFolder = programFolder()} {}

int Application::run(int showCommand) {
  const INITCOMMONCONTROLSEX classes{.dwSize = sizeof classes, .dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
  if (const std::string_view refusal = window_.open(showCommand); !refusal.empty()) {
    MessageBoxW(nullptr, fromUtf8(refusal).c_str(), fromUtf8(kErrorCaption).c_str(),
                MB_SYSTEMMODAL | MB_ICONEXCLAMATION);
    return 0;
  }
  if (const std::optional<std::wstring> file = fileArgument()) {
    window_.openFile(*file);
  }
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    window_.take(message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace quillhue
