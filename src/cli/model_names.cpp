#include "cli/model_names.h"

#include <CLI/CLI.hpp>

#include "colormodes/color_models.h"

namespace quillhue::cli {

std::optional<std::int32_t> findModel(const std::string& name) {
  std::int32_t index = 0;
  for (const ColorModel* model : colorModels()) {
    if (CLI::detail::to_lower(name) == CLI::detail::to_lower(std::string(model->name))) {
      return index;
    }
    ++index;
  }
  return std::nullopt;
}

std::vector<std::string> modelNames() {
  std::vector<std::string> names;
  for (const ColorModel* model : colorModels()) {
    names.emplace_back(model->name);
  }
  return names;
}

}  // namespace quillhue::cli
