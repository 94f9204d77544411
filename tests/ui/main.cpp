#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <iostream>
#include <optional>

#include "core/utf8.h"
#include "ui/support/program.h"
#include "ui/support/registry.h"

namespace quillhue {
namespace {

/// Gives the user back the settings of before.
class SettingsOfBefore : public testing::Environment {
 public:
  void SetUp() override { before_ = storedSettings(); }
  void TearDown() override { store(before_); }

 private:
  std::optional<StoredSettings> before_;
};

}  // namespace
}  // namespace quillhue

/// ui_tests [FLAG...] PROGRAM: tests the editor, which is the file PROGRAM.
int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  if (argumentCount != 2) {
    std::cerr << "usage: ui_tests [FLAG...] PROGRAM\n";
    return EXIT_FAILURE;
  }
  // Sizes and points are those of the screen, as in the program.
  SetProcessDPIAware();
  // A program that crashes ends at once.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  quillhue::Program::setFile(quillhue::fromUtf8(arguments[1]));
  testing::AddGlobalTestEnvironment(new quillhue::SettingsOfBefore);
  return RUN_ALL_TESTS();
}
