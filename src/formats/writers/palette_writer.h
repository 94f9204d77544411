#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "core/palette.h"
#include "core/palette_format.h"
#include "formats/byte_sink.h"
#include "formats/failure.h"

namespace quillhue {

inline constexpr std::int32_t kAnySize = std::numeric_limits<std::int32_t>::max();

/// One format that palettes are written in.
struct PaletteWriter {
  PaletteFormat format;
  /// For scripts.
  std::string_view name;
  /// The file type's text and pattern in the Save As dialog.
  std::string_view fileType;
  std::string_view pattern;
  /// What the format's files are usually called.
  std::string_view extension;
  /// A name without an extension gets it in Save As.
  bool appendsExtension;
  /// The extension alone stands for this format; of those that share one, it does so for one at most.
  bool ownsExtension;
  /// The most entries that the format holds.
  std::int32_t maxSize;
  /// Composes the file; the palette is not larger than maxSize. Unused entries of a fixed size become `blank`.
  void (*compose)(const Palette& palette, PaletteEntry blank, ByteSink& sink);
};

/// The entry, or `blank` past the palette's end.
[[nodiscard]] inline PaletteEntry entryOr(const Palette& palette, std::int32_t index, PaletteEntry blank) {
  return index < palette.getSize() ? palette.entry(index) : blank;
}

/// One line of three decimal numbers an entry, appended to the file.
void composeNumberLines(const Palette& palette, char separator, std::string_view lineEnd, ByteSink& sink);

/// `count` records of red, green, blue and `fourth`, in `blank` past the palette's end.
void composeQuads(const Palette& palette, std::int32_t count, PaletteEntry blank, std::uint8_t fourth,
                  std::size_t offset, ByteSink& sink);
/// `count` records of red, green, blue, in `blank` past the palette's end.
void composeTriples(const Palette& palette, std::int32_t count, PaletteEntry blank, std::size_t offset, ByteSink& sink);

}  // namespace quillhue
