#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_line.h"
#include "cli/swatches.h"
#include "core/palette.h"
#include "core/palette_format.h"
#include "formats/failure.h"
#include "formats/readers/palette_reader.h"

namespace quillhue::cli {

/// The settings that the contents of a file depend on, besides the palette and the format.
struct Composition {
  /// Color of unused entries in a format of fixed size.
  PaletteEntry blank;
  /// The file's name without folder and extension; empty for standard output.
  std::string name;
  SwatchLayout swatches;
};

using Composed = std::expected<std::vector<std::uint8_t>, Failure>;
using Compose = std::function<Composed(const Palette& palette, const Composition& composition)>;

/// The format that uses SwatchLayout.
inline constexpr std::string_view kPngFormat = "png";

/// A format that the tool can write: one of the editor's or one of the tool's own.
struct OutputFormat {
  std::string_view name;
  PaletteFormat code;
  std::string_view title;
  std::string_view extension;
  bool ownsExtension;
  std::int32_t maxSize;
  Compose compose;
  /// Reads such files back; null if nothing does.
  const PaletteReader* reader = nullptr;
};

/// Returns all formats. With `standard`, some of them follow their published descriptions.
[[nodiscard]] std::vector<OutputFormat> outputFormats(bool standard = false);

/// Options of the verbs that write palettes.
struct OutputOptions {
  std::string format;
  std::optional<std::int32_t> columns;
  std::optional<std::int32_t> cell;
  bool force = false;
};
void addOutputOptions(Verb& verb, OutputOptions& options);

/// Chooses the format of one output file.
class FormatChoice {
 public:
  /// Chooses by --format, otherwise by the extension of the file `to`. If the input file `from` has the same extension,
  /// its own format is preferred. It is a usage error if neither determines a format.
  FormatChoice(const OutputOptions& options, bool standard, const std::string& to, const std::string& from = {});

  /// Returns the format for a palette of `size` entries that was read in the format `readAs`. The input's own format is
  /// used only if it can be written and can hold the palette. It is a usage error if no other format was chosen.
  [[nodiscard]] const OutputFormat& formatFor(std::string_view readAs, std::int32_t size) const;

 private:
  std::vector<OutputFormat> formats_;
  std::optional<std::size_t> chosen_;
  bool keepsFormat_ = false;
};

}  // namespace quillhue::cli
