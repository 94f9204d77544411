#include "system/temporary_name.h"

#include <random>
#include <string>

namespace quillhue {

std::string temporaryName() {
  std::random_device random;
  return "quillhue-" + std::to_string(random()) + std::to_string(random()) + ".tmp";
}

}  // namespace quillhue
