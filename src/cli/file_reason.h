#pragma once

#include <cstddef>
#include <string>

#include "formats/failure.h"

namespace quillhue::cli {

/// Returns the failure's text. If the file could not be opened, the likely reason follows after a colon. The reason is
/// looked up afterwards, so it is missing if the file has changed in the meantime.
[[nodiscard]] std::string openingFailure(Failure failure, const std::string& file);

/// Returns why a file of `size` bytes could not be created: "Could not create the file: the disk is full." `error` is
/// the value of errno after the failure.
[[nodiscard]] std::string creationFailure(const std::string& file, std::size_t size, int error);

}  // namespace quillhue::cli
