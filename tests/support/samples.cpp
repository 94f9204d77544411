#include "support/samples.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace quillhue {

Bytes Sample::content() const {
  std::ifstream stream("samples/" + file, std::ios::binary);
  return {std::istreambuf_iterator(stream), std::istreambuf_iterator<char>()};
}

std::vector<Sample> allSamples() {
  std::ifstream stream("samples.txt");
  std::vector<Sample> samples;
  for (std::string line; std::getline(stream, line);) {
    Sample sample;
    std::istringstream(line) >> sample.file >> sample.reader >> std::ws;
    sample.holds = line.substr(sample.file.size() + sample.reader.size() + 2);
    samples.push_back(sample);
  }
  return samples;
}

}  // namespace quillhue
