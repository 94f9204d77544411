#include <cstdlib>
#include <fstream>

#include "ui/logic/menu_script.h"

/// write_menus FILE: writes the resource script of the menus and accelerators.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    return EXIT_FAILURE;
  }
  std::ofstream file(arguments[1]);
  file << quillhue::menuScript();
  file.close();
  return file ? EXIT_SUCCESS : EXIT_FAILURE;
}
