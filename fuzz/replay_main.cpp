// Runs a fuzz target on each file of the command line, and on all files in each folder.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz_target.h"

namespace {

void replay(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string content{std::istreambuf_iterator(stream), std::istreambuf_iterator<char>()};
  const std::vector<std::uint8_t> bytes(content.begin(), content.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int argumentCount, char** arguments) {
  int replayed = 0;
  for (int i = 1; i < argumentCount; ++i) {
    if (!std::filesystem::is_directory(arguments[i])) {
      replay(arguments[i]);
      ++replayed;
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      replay(entry.path());
      ++replayed;
    }
  }
  std::printf("%d files replayed\n", replayed);
  return replayed > 0 ? 0 : 1;
}
