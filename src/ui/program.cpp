#include <windows.h>

#include "ui/application.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int showCommand) {
  return quillhue::Application().run(showCommand);
}
