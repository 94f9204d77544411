#pragma once

#include <cstdint>
#include <expected>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"
#include "cli/refusal.h"
#include "formats/image_colors.h"
#include "formats/readers/palette_readers.h"

namespace quillhue::cli {

/// How a verb reads files.
struct InputOptions {
  /// File name to assume for standard input.
  std::string name;
  /// Follow the published descriptions of the formats.
  bool standard = false;
};

/// A file that was read. The pixels of a true-color bitmap are still read from the source.
struct Input {
  std::unique_ptr<ByteSource> source;
  const PaletteReader* reader;
  FileContent content;
};

/// Opens the file, or reads standard input for "-".
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> openSource(const std::string& file, Console& console);

/// Reads a file, or standard input for "-".
[[nodiscard]] std::expected<Input, Failure> openInput(const std::string& file, const InputOptions& options,
                                                      Console& console);
/// The same for an open file. Adds notes and the record of the file to `notes`, if it is not null.
[[nodiscard]] std::expected<Input, Failure> readInput(std::unique_ptr<ByteSource> source, const std::string& file,
                                                      const InputOptions& options, Console* notes);

/// Collects the colors of an image without a palette. The image must outlive the result. Throws std::bad_alloc.
[[nodiscard]] ImageColors colorsOf(const FileContent& image);

/// A palette and the format that it was read from. The format is empty if the palette was made from an image's colors.
struct InputPalette {
  Palette palette;
  std::string_view format;
};

/// Reads the palette of a palette file or an indexed image. Refuses a true-color image.
[[nodiscard]] std::expected<InputPalette, std::string> readFilePalette(const std::string& file,
                                                                       const InputOptions& options, Console& console);

/// Returns the name of the file, or for "-" the name to assume for standard input.
[[nodiscard]] const std::string& inputName(const std::string& file, const InputOptions& options);

}  // namespace quillhue::cli
