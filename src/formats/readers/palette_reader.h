#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "core/palette.h"
#include "core/palette_format.h"
#include "formats/byte_source.h"
#include "formats/failure.h"
#include "formats/true_color_bitmap.h"
#include "formats/work_image.h"

namespace quillhue {

/// A file to be read: its bytes, and its name for those formats that only the extension tells.
struct ReaderInput {
  ByteSource& source;
  std::wstring_view name;
};

/// A palette that a file holds, and the format it can be written back in.
struct FilePalette {
  Palette palette;
  PaletteFormat format = palette_format::kNone;
  /// The file has more entries than kMaxPaletteSize; the palette has the first of them.
  bool isCut = false;
};

/// What a reader finds: a palette, or an image of true colors from which one can be made. An image that is decoded at
/// once comes only from readers that the tool asks by their own means.
using FileContent = std::variant<FilePalette, TrueColorBitmap, WorkImage>;
using ReadResult = std::expected<FileContent, Failure>;

/// One layout of palette files.
struct PaletteReader {
  /// For scripts.
  std::string_view name;
  /// For people.
  std::string_view title;
  /// What tells the layout: a signature or an extension, in words.
  std::string_view recognisedBy;
  /// What its files are usually called, as file name patterns of the Open dialog with semicolons between them.
  std::string_view patterns;
  /// True when the file has this layout's signature or name. The catalogue asks in order, and the first true counts.
  bool (*matches)(const ReaderInput& input);
  /// Reads a file that matches. Sizes that the file claims are checked before anything of that size is made.
  ReadResult (*read)(const ReaderInput& input);
};

/// The entries of a file that lists them one after the other.
class ListedEntries {
 public:
  /// Keeps the first kMaxPaletteSize colors.
  void add(PaletteEntry color);
  /// True when one more was added than is kept.
  [[nodiscard]] bool isCut() const { return isCut_; }
  /// The palette, or `ifNone` when there are no entries.
  [[nodiscard]] ReadResult result(Failure ifNone, PaletteFormat format = palette_format::kNone) const;

 private:
  std::vector<PaletteEntry> colors_;
  bool isCut_ = false;
};

/// True when the name's last characters are `word` (upper-case letters); in the name a to z count as A to Z.
[[nodiscard]] bool nameEndsWith(std::wstring_view name, std::string_view word);

/// `count` entries (1 or more) from records of red, green, blue, three bytes each.
[[nodiscard]] Palette paletteFromTriples(std::span<const std::uint8_t> bytes, std::int32_t count);
/// The same from records of four bytes, of which the last is ignored.
[[nodiscard]] Palette paletteFromQuads(std::span<const std::uint8_t> bytes, std::int32_t count);

/// The same, read from a file at `offset`; for `count` up to kMaxPaletteSize.
[[nodiscard]] Palette readTriples(ByteSource& source, std::uint64_t offset, std::int32_t count);
[[nodiscard]] Palette readQuads(ByteSource& source, std::uint64_t offset, std::int32_t count);

/// The palette with red and blue exchanged, for formats that store blue first.
[[nodiscard]] Palette blueFirst(Palette palette);

}  // namespace quillhue
