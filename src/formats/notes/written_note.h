#pragma once

#include <optional>
#include <string>

#include "formats/readers/palette_reader.h"

namespace quillhue {

/// Describes how a format has changed a palette.
struct WritingNote {
  /// A clause without a capital and a full stop.
  std::string text;
  /// False if the reader refuses the file.
  bool isReadable = true;
};

/// Reads `content`, which a writer has composed from `palette`, by `reader`, and says what the format has added,
/// dropped or moved. Returns nothing if the same palette comes back.
[[nodiscard]] std::optional<WritingNote> noteWriting(const Palette& palette, const PaletteReader& reader,
                                                     std::vector<std::uint8_t> content);

}  // namespace quillhue
