// The input describes a palette and images that are remapped onto it. The results must be those of the reference.

#include <vector>

#include "fuzz_target.h"
#include "support/remap_cases.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillhue::CaseBytes bytes(std::vector(data, data + size));
  const std::string difference = differenceOf(bytes);
  quillhue::require(difference.empty(), difference.c_str());
  return 0;
}
