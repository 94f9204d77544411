// The input describes a true-color image. Palettes made from it must equal those of the plain method.

#include <vector>

#include "fuzz_target.h"
#include "support/image_color_cases.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillhue::CaseBytes bytes(std::vector(data, data + size));
  const std::string difference = quillhue::differenceOfColors(bytes);
  quillhue::require(difference.empty(), difference.c_str());
  return 0;
}
