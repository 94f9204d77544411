#pragma once

#include <cstdint>

namespace quillhue {

class DialogOwner;
class Messages;

/// Asks how to make a palette from an image with `distinctColors` different colors. Returns the answer of
/// FileQuestions::askPaletteFromImage.
[[nodiscard]] std::int32_t showPaletteFromImageDialog(const DialogOwner& owner, Messages& messages,
                                                      std::uint64_t distinctColors);

}  // namespace quillhue
