#include "ui/application.h"
#include "ui/win32/guarded.h"
#include "ui/win32/system.h"

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the system's declaration uses other names.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int showCommand) {
  return quillhue::guarded(nullptr, 0, 1, [&] { return quillhue::Application().run(showCommand); });
}
