#include "formats/notes/written_note.h"

#include <algorithm>
#include <utility>

namespace quillhue {

std::optional<WritingNote> noteWriting(const Palette& palette, const PaletteReader& reader,
                                       std::vector<std::uint8_t> content) {
  MemorySource source(std::move(content));
  const ReadResult result = reader.read({source, {}});
  const auto* const file = result ? std::get_if<FilePalette>(&*result) : nullptr;
  if (file == nullptr) {
    return WritingNote{"the count is stored in one byte, so the file is refused when it is read", false};
  }
  const std::vector<PaletteEntry> entries = entriesOf(palette);
  const std::vector<PaletteEntry> kept = entriesOf(file->palette);
  if (kept == entries) {
    return std::nullopt;
  }
  const std::string counts = std::to_string(entries.size()) + " entries are ";
  if (kept.size() > entries.size() && std::equal(entries.begin(), entries.end(), kept.begin())) {
    return WritingNote{counts + "padded to " + std::to_string(kept.size())};
  }
  return WritingNote{counts + "stored as " + std::to_string(kept.size()) +
                     ": the format drops repeated colors and adds black"};
}

}  // namespace quillhue
