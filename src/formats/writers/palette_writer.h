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

/// A format in which palettes are written.
struct PaletteWriter {
  PaletteFormat format;
  /// Identifier for scripts.
  std::string_view name;
  /// Text and pattern of the file type in the Save As dialog.
  std::string_view fileType;
  std::string_view pattern;
  /// The usual extension.
  std::string_view extension;
  /// True when Save As appends the extension to a name without one.
  bool appendsExtension;
  /// True when the extension alone chooses this format. Only one of the formats that share an extension may have this.
  bool ownsExtension;
  /// The greatest number of entries.
  std::int32_t maxSize;
  /// Composes the file. The palette has at most maxSize entries. Unused entries of a fixed-size table become `blank`.
  void (*compose)(const Palette& palette, PaletteEntry blank, ByteSink& sink);
};

/// Returns the entry, or `blank` past the palette's end.
[[nodiscard]] inline PaletteEntry entryOr(const Palette& palette, std::int32_t index, PaletteEntry blank) {
  return index < palette.getSize() ? palette.entry(index) : blank;
}

/// Appends one line of three decimal numbers for each entry.
void composeNumberLines(const Palette& palette, char separator, std::string_view lineEnd, ByteSink& sink);

/// A table of `count` records from `offset` on, each of red, green, blue and `fourth`. Records past the palette's end
/// are `blank`.
struct QuadTable {
  std::size_t offset = 0;
  std::int32_t count = 0;
  PaletteEntry blank{};
  std::uint8_t fourth = 0;
};
void composeQuads(const Palette& palette, const QuadTable& table, ByteSink& sink);
/// Writes `count` records of red, green and blue, with `blank` past the palette's end.
void composeTriples(const Palette& palette, std::int32_t count, PaletteEntry blank, std::size_t offset, ByteSink& sink);

}  // namespace quillhue
