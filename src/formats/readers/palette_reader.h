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

/// A file to be read: its bytes, and its name for formats that are recognised by the extension.
struct ReaderInput {
  ByteSource& source;
  std::wstring_view name;
};

/// The palette of a file, and the format in which it can be written back.
struct FilePalette {
  Palette palette;
  PaletteFormat format = palette_format::kNone;
  /// The file has more than kMaxPaletteSize entries; the palette has only the first of them.
  bool isCut = false;
};

/// The result of reading: a palette, or a true-color image from which a palette can be made. Only the tool's own
/// readers return a decoded image (WorkImage).
using FileContent = std::variant<FilePalette, TrueColorBitmap, WorkImage>;
using ReadResult = std::expected<FileContent, Failure>;

/// Reading a palette takes at most this much memory, whatever the file's size and the numbers in it, and reads each
/// byte of the file at most this often. Time is therefore linear in the file's size.
inline constexpr std::size_t kMaxReaderMemory = std::size_t{1} << 16;
inline constexpr std::uint64_t kMaxReaderPasses = 4;

/// One layout of palette files.
struct PaletteReader {
  /// Identifier for scripts.
  std::string_view name;
  /// Title for users.
  std::string_view title;
  /// Describes how files are recognised: a signature or an extension.
  std::string_view recognisedBy;
  /// File name patterns of the Open dialog, separated by semicolons.
  std::string_view patterns;
  /// True when the file has this layout's signature or name. The first reader in the catalogue that matches is used.
  bool (*matches)(const ReaderInput& input);
  /// Reads a file that matches. Checks every size in the file before it allocates memory of that size.
  ReadResult (*read)(const ReaderInput& input);
};

/// Collects the entries of a file that lists colors one after the other.
class ListedEntries {
 public:
  /// Adds a color, unless there are kMaxPaletteSize already.
  void add(PaletteEntry color);
  /// True when a color was left out.
  [[nodiscard]] bool isCut() const { return isCut_; }
  /// Returns the palette, or `ifNone` when there are no entries.
  [[nodiscard]] ReadResult result(Failure ifNone, PaletteFormat format = palette_format::kNone) const;

 private:
  std::vector<PaletteEntry> colors_;
  bool isCut_ = false;
};

/// True when the name ends with `word`, which is in upper case. In the name, a to z count as A to Z.
[[nodiscard]] bool nameEndsWith(std::wstring_view name, std::string_view word);

/// Returns `count` entries (1 or more) from records of red, green and blue, one byte each.
[[nodiscard]] Palette paletteFromTriples(std::span<const std::uint8_t> bytes, std::int32_t count);
/// The same from records of four bytes; the last byte is ignored.
[[nodiscard]] Palette paletteFromQuads(std::span<const std::uint8_t> bytes, std::int32_t count);

/// The same, read from a file at `offset`. `count` is at most kMaxPaletteSize.
[[nodiscard]] Palette readTriples(ByteSource& source, std::uint64_t offset, std::int32_t count);
[[nodiscard]] Palette readQuads(ByteSource& source, std::uint64_t offset, std::int32_t count);

/// Returns the palette with red and blue exchanged, for formats that store blue first.
[[nodiscard]] Palette blueFirst(Palette palette);

}  // namespace quillhue
