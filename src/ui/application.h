#pragma once

#include "core/document.h"
#include "ui/logic/settings_store.h"
#include "ui/main_window.h"
#include "ui/services/clipboard.h"
#include "ui/services/color_dialog.h"
#include "ui/services/file_dialogs.h"
#include "ui/services/halftone_palette.h"
#include "ui/services/message_boxes.h"
#include "ui/services/registry_settings.h"
#include "ui/win32/com.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// The running editor. Owns its parts; each is made from the parts above it.
class Application {
 public:
  Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  ~Application() = default;

  /// Shows the window, opens the palette named on the command line, and handles messages until the window is closed.
  /// Returns the exit code.
  int run(int showCommand);

 private:
  Apartment apartment_;
  RegistrySettings store_;
  SavedSettings settings_;
  DocumentSlot slot_;
  DialogOwner dialogOwner_;
  MessageBoxes messages_;
  FileDialogs fileDialogs_;
  Clipboard clipboard_;
  ColorDialog colorDialog_;
  HalftonePalette screen_;
  MainWindow window_;
};

}  // namespace quillhue
