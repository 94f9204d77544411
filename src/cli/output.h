#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/output_format.h"
#include "cli/refusal.h"

namespace quillhue::cli {

void addForceFlag(Verb& verb, bool& force);

/// Makes the argument of -o, if there is one, the last of the files. Refuses the usage with --out-dir.
void addOutput(const std::string& out, bool hasOutDir, std::vector<std::string>& files);

/// The place and the form in which a palette is written.
struct PaletteOutput {
  /// The input file, which is reported if the format can't hold the palette.
  const std::string& from;
  const std::string& to;
  const OutputFormat& format;
  /// Color of unused entries in a format of fixed size.
  PaletteEntry blank;
  const OutputOptions& options;
};

/// Composes the palette and writes it. Refuses the usage if an option is only for another format.
[[nodiscard]] std::expected<void, FileRefusal> writePalette(const PaletteOutput& output, const Palette& palette,
                                                            Console& console);

/// Refuses the usage if both the data and the JSON would go to standard output.
void refuseJsonOnStandardOutput(bool json, const std::string& file);

/// Writes a whole file, or to standard output for "-". An existing file is replaced only with `force`.
[[nodiscard]] std::expected<void, std::string> writeOutput(const std::string& file,
                                                           const std::vector<std::uint8_t>& content, bool force,
                                                           Console& console);

}  // namespace quillhue::cli
