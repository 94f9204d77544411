#pragma once

#include <string>

#include "support/case_bytes.h"

namespace quillhue {

/// Compares the colors of an image that the bytes describe, and palettes made of them, with those of a plain method
/// that sorts all pixels. Returns a text that says what differs; empty if nothing does.
std::string differenceOfColors(CaseBytes& bytes);

}  // namespace quillhue
