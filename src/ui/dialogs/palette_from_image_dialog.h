#pragma once

#include <cstdint>

namespace quillhue {

class DialogOwner;
class Messages;

/// Asks how to make a palette from an image of so many different colors, and answers as
/// FileQuestions::askPaletteFromImage does.
[[nodiscard]] std::int32_t showPaletteFromImageDialog(const DialogOwner& owner, Messages& messages,
                                                      std::uint64_t distinctColors);

}  // namespace quillhue
