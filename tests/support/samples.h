#pragma once

#include <string>
#include <vector>

#include "support/palettes.h"

namespace quillhue {

/// A file of data/samples and the line that samples.txt has for it behind its name.
struct Sample {
  std::string file;
  std::string reader;
  std::string holds;

  [[nodiscard]] std::wstring name() const { return {file.begin(), file.end()}; }
  [[nodiscard]] Bytes content() const;
};

/// All samples; tests run in the folder data.
[[nodiscard]] std::vector<Sample> allSamples();

}  // namespace quillhue
