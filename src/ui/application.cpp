#include "ui/application.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/utf8.h"
#include "ui/logic/window_texts.h"
#include "ui/screens/intro_ui.h"
#include "ui/screens/tabs_ui.h"
#include "ui/services/recent_documents.h"
#include "ui/win32/command_line.h"
#include "ui/win32/drawing.h"
#include "ui/win32/guarded.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

template <typename Screen>
std::unique_ptr<MainUI> makeScreen(WindowContext& context) {
  return std::make_unique<Screen>(context);
}

}  // namespace

Application::Application()
    : settings_(readSettings(store_, Scale{screenDpi()})),
      messages_(dialogOwner_),
      fileDialogs_(dialogOwner_, messages_),
      clipboard_(dialogOwner_),
      colorDialog_(dialogOwner_),
      window_({.settings = settings_,
               .settingsStore = store_,
               .slot = slot_,
               .messages = messages_,
               .fileQuestions = fileDialogs_,
               .clipboard = clipboard_,
               .screen = screen_,
               .dialogOwner = dialogOwner_,
               .services = {.dialogOwner = dialogOwner_,
                            .fileDialogs = fileDialogs_,
                            .clipboard = clipboard_,
                            .colorChooser = colorDialog_,
                            .programFolder = programFolder()},
               .fileUsed = addRecentDocument,
               .makeIntro = makeScreen<IntroUI>,
               .makeEditor = makeScreen<TabsUI>}) {}

int Application::run(int showCommand) {
  const INITCOMMONCONTROLSEX classes{.dwSize = sizeof classes, .dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
  if (const std::string_view refusal = window_.open(showCommand); !refusal.empty()) {
    MessageBoxW(nullptr, fromUtf8(refusal).c_str(), fromUtf8(kErrorCaption).c_str(),
                MB_SYSTEMMODAL | MB_ICONEXCLAMATION);
    return 0;
  }
  if (const std::optional<std::wstring> file = fileArgument()) {
    guarded(window_.handle(), [&] { window_.openFile(*file); });
  }
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    guarded(window_.handle(), [&] { window_.dispatch(message); });
  }
  return static_cast<int>(message.wParam);
}

}  // namespace quillhue
