// program_documents FOLDER: writes the manual pages and completions of the tool into the folder.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "cli/application.h"
#include "cli/manual.h"

namespace {

using namespace quillhue::cli;

void write(const std::filesystem::path& folder, const Document& document) {
  const std::filesystem::path path = folder / document.path;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << document.content;
  file.close();
  if (!file) {
    throw std::runtime_error("could not write " + path.string());
  }
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  if (argumentCount != 2) {
    std::cerr << "usage: program_documents FOLDER\n";
    return 2;
  }
  Console console{std::cin, std::cout, std::cerr};
  ExitStatus status = kDone;
  CommandLine tool = emptyCommandLine();
  addVerbs(tool, console, status);
  for (const auto& documents : {manualPages(tool.help(), QUILLHUE_VERSION), completions(tool.help())}) {
    for (const Document& document : documents) {
      write(arguments[1], document);
    }
  }
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
