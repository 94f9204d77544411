#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/true_color_bitmap.h"
#include "support/case_bytes.h"

namespace quillhue {

/// Compares the colors of an image that the bytes describe, and palettes made from them, with those of a plain method
/// that sorts all pixels. Returns a description of the first difference, or an empty text.
std::string differenceOfColors(CaseBytes& bytes);

/// Returns the text of the palette that the plain method makes from an image's pixels by median cut.
std::string plainlyReduced(const std::vector<ColorWord>& words, std::int32_t size);

}  // namespace quillhue
