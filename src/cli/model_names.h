#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillhue::cli {

/// The index of the color model of this name, in upper or lower case.
[[nodiscard]] std::optional<std::int32_t> findModel(const std::string& name);

[[nodiscard]] std::vector<std::string> modelNames();

}  // namespace quillhue::cli
