#pragma once

#include <string>

#include "support/case_bytes.h"

namespace quillhue {

/// Compares the colors of an image that the bytes describe, and palettes made from them, with those of a plain method
/// that sorts all pixels. Returns a description of the first difference, or an empty text.
std::string differenceOfColors(CaseBytes& bytes);

}  // namespace quillhue
