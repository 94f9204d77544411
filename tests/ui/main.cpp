#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "core/utf8.h"
#include "ui/support/program.h"
#include "ui/support/registry.h"
#include "ui/support/saved_clipboard.h"
#include "ui/win32/system.h"

/// ui_tests [FLAG...] PROGRAM: tests the editor PROGRAM.
int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  if (argumentCount != 2) {
    std::cerr << "usage: ui_tests [FLAG...] PROGRAM\n";
    return EXIT_FAILURE;
  }
  // Sizes and points are those of the screen, as in the program.
  SetProcessDPIAware();
  // A program that crashes ends at once, without a dialog.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  quillhue::Program::setFile(quillhue::fromUtf8(arguments[1]));
  // Restores the user's settings at the end.
  const quillhue::StoredSettings before = quillhue::storedSettings();
  testing::AddGlobalTestEnvironment(new quillhue::SavedClipboard);
  const int result = RUN_ALL_TESTS();
  quillhue::store(before);
  return result;
}
